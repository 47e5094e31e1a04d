# The device pictures the plug-in's wiring diagram shows (":/is_devices.png",
# ":/is_devices_newnrack.png"), host resources the plug-in only reads: drawn at build time by our
# own QPainter program and embedded in the host.
add_executable(hst_draw_devices ${CMAKE_CURRENT_LIST_DIR}/draw_devices.cpp)
target_link_libraries(hst_draw_devices PRIVATE Qt5::Gui)

set(HST_DEVICE_IMAGES ${CMAKE_CURRENT_BINARY_DIR}/device-images)
add_custom_command(
    OUTPUT ${HST_DEVICE_IMAGES}/is_devices.png ${HST_DEVICE_IMAGES}/is_devices_newnrack.png
    COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen ASAN_OPTIONS=detect_leaks=0
        $<TARGET_FILE:hst_draw_devices> ${HST_DEVICE_IMAGES}
    DEPENDS hst_draw_devices
    COMMENT "Drawing the device pictures")
configure_file(${CMAKE_CURRENT_LIST_DIR}/tarvixdevices.qrc.in
    ${HST_DEVICE_IMAGES}/tarvixdevices.qrc @ONLY)
# Not AUTORCC: its scan runs before the pictures exist.
qt5_add_resources(HST_DEVICE_RESOURCES ${HST_DEVICE_IMAGES}/tarvixdevices.qrc)
target_sources(tarvixhost PRIVATE ${HST_DEVICE_RESOURCES})
