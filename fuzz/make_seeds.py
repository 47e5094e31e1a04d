#!/usr/bin/env python3
"""Writes the small seed corpus of each fuzz target into fuzz/corpus/<target>/.

The seeds are well-formed exchanges, a few bytes to a few hundred each, so the fuzzer starts
from the shapes the parsers accept. Run again after changing a message layout.
"""
import os
import struct

HERE = os.path.dirname(os.path.abspath(__file__))

CORE, CORE_VERS = 0x0607AF, 1
PMAP, PMAP_VERS = 100000, 2
CREATE_LINK, DEVICE_WRITE, DEVICE_READ, DEVICE_CLEAR, DESTROY_LINK = 10, 11, 12, 15, 23


def u32(*values):
    return b"".join(struct.pack(">I", v & 0xFFFFFFFF) for v in values)


def opaque(data):
    if isinstance(data, str):
        data = data.encode()
    return u32(len(data)) + data + b"\0" * ((4 - len(data) % 4) % 4)


def mark(body, last=True):
    return u32(len(body) | (0x80000000 if last else 0)) + body


def reply(xid, results=b"", stat=0):
    return u32(xid, 1, 0, 0, 0, stat) + results


def call(xid, prog, vers, proc, args=b""):
    return u32(xid, 0, 2, prog, vers, proc, 0, 0, 0, 0) + args


def write(target, name, data):
    folder = os.path.join(HERE, "corpus", target)
    os.makedirs(folder, exist_ok=True)
    with open(os.path.join(folder, name), "wb") as f:
        f.write(data)


def visa_reply():
    # [expected call] [split size] [stream]
    seeds = {
        "getport": (0, 0, mark(reply(7, u32(40123)))),
        "getport-unregistered": (0, 3, mark(reply(7, u32(0)))),
        "create-link": (1, 0, mark(reply(8, u32(0, 1, 0, 4096)))),
        "create-link-error": (1, 5, mark(reply(8, u32(9, 0, 0, 0)))),
        "write": (2, 0, mark(reply(9, u32(0, 6)))),
        "read": (3, 0, mark(reply(10, u32(0, 4) + opaque("+1.00000000000000E+03\n")))),
        "read-chunks": (3, 7, mark(reply(10, u32(0, 1) + opaque("ABC")))
                        + mark(reply(11, u32(0, 0) + opaque(""))) + mark(reply(12, u32(0, 4) + opaque("D\n")))),
        "read-fragments": (3, 0, mark(u32(10, 1, 0), last=False)
                           + mark(u32(0, 0, 0) + u32(0, 4) + opaque("x"))),
        "read-late-then-right": (3, 2, mark(reply(3, u32(15, 0) + opaque(""))) + mark(reply(4, u32(0, 4) + opaque("ok")))),
        "clear": (4, 0, mark(reply(11, u32(0)))),
        "destroy": (5, 0, mark(reply(12, u32(0)))),
        "denied": (3, 0, mark(u32(5, 1, 1, 0, 2, 2))),
        "garbage-args": (1, 0, mark(reply(5, b"", 4))),
        "garbage": (3, 0, mark(u32(5, 7) + b"\xde\xad\xbe")),
    }
    for name, (expected, split, stream) in seeds.items():
        write("fuzz_visa_reply", name, bytes([expected, split]) + stream)


def visa_session():
    # flags, then one reply per call, each [length:2] [record]. An xid of 0 is replaced by the
    # call's own.
    def script(flags, *records):
        return bytes([flags]) + b"".join(struct.pack(">H", len(r)) + r for r in records)
    link = mark(reply(0, u32(0, 1, 0, 16)))
    wrote = mark(reply(0, u32(0, 6)))
    idn = mark(reply(0, u32(0, 4) + opaque("Maker,33210A,1,1.0\n")))
    sessions = {
        "session": script(0, link, wrote, idn, *[mark(reply(0, u32(0, 16)))] * 19, mark(reply(0, u32(0, 8))), idn,
                          mark(reply(0, u32(0))), mark(reply(0, u32(0)))),
        "session-portmapper": script(1, mark(reply(0, u32(111))), link),
        "session-late-reply": script(8, link, wrote, mark(reply(1, u32(0, 4) + opaque("old"))) + idn),
        "session-chunks": script(2, link, wrote, mark(reply(0, u32(0, 0) + opaque("ab"))),
                                 mark(reply(0, u32(0, 0) + opaque(""))), idn),
        "session-garbage": script(0, link, wrote, mark(u32(0, 7) + b"\xde\xad"), mark(reply(0, u32(0)))),
    }
    for name, data in sessions.items():
        write("fuzz_visa_session", name, data)


def sim_request():
    # [flags] [split size] [bytes]; flags & 3: 0 TCP, 1 UDP, 2 SCPI
    link = call(1, CORE, CORE_VERS, CREATE_LINK, u32(1, 0, 0) + opaque("inst0"))
    def dwrite(xid, text, flags=8):
        return call(xid, CORE, CORE_VERS, DEVICE_WRITE, u32(1, 2000, 0, flags) + opaque(text))
    dread = call(9, CORE, CORE_VERS, DEVICE_READ, u32(1, 65536, 2000, 0, 0, 0))
    session = (mark(link) + mark(dwrite(2, "*IDN?")) + mark(dread) + mark(dwrite(3, "FREQ 1000;FREQ?"))
               + mark(dread) + mark(call(4, CORE, CORE_VERS, DEVICE_CLEAR, u32(1, 0, 0, 2000)))
               + mark(call(5, CORE, CORE_VERS, DESTROY_LINK, u32(1))))
    seeds = {
        "getport": (0, 0, mark(call(1, PMAP, PMAP_VERS, 3, u32(CORE, CORE_VERS, 6, 0)))),
        "getaddr": (0, 0, mark(call(1, PMAP, 3, 3, u32(CORE, CORE_VERS) + opaque("tcp") + opaque("") + opaque("")))),
        "udp-getport": (1, 0, call(1, PMAP, PMAP_VERS, 3, u32(CORE, CORE_VERS, 6, 0))),
        "session": (0, 0, session),
        "session-split": (4, 5, session),
        "write-in-pieces": (8, 0, mark(link) + mark(dwrite(2, "VOLT:", 0)) + mark(dwrite(3, "OFFS 0.1")) + mark(dread)),
        "termchar-read": (0, 0, mark(link) + mark(dwrite(2, "*IDN?;SYST:ERR?")) + mark(call(9, CORE, CORE_VERS, DEVICE_READ, u32(1, 8, 0, 0, 128, ord(","))))),
        "fragments": (0, 3, mark(link[:12], last=False) + mark(link[12:])),
        "bad-version": (0, 0, mark(u32(1, 0, 3, CORE, CORE_VERS, 10, 0, 0, 0, 0))),
        "scpi-setup": (2, 0, b"*RST;*CLS\0DISP OFF\0DISP:TEXT \"SYNC\"\0FUNC SQU\0FREQ 1000\0VOLT:HIGH 5\0"
                       b"VOLT:LOW 0\0FUNC:PULS:DCYC 50\0OUTP ON\0OUTP?;FREQ?;VOLT?;VOLT:OFFS?;FUNC?\0SYST:ERR?"),
        "scpi-errors": (2, 0, b"FREQ banana\0VOLT 99\0NOPE\0FUNCTION:SHAPE puls;freq max;FREQ?\0syst:err?;SYST:ERR?\0"
                        b"DISP:TEXT 'a;b'\0VOLT MIN;VOLT:OFFS -1e3\0*idn?"),
    }
    for name, (flags, split, data) in seeds.items():
        write("fuzz_sim_request", name, bytes([flags, split]) + data)


def text_helpers():
    # [double] [double] [u32] [i32] [flag] [text NUL text]
    def seed(a, b, u, i, flag, text):
        return struct.pack("<ddIiB", a, b, u, i, flag) + text
    seeds = {
        "address": seed(2.345678, 0.5, 0xC0A8000A, 0x123456, 0, b"192.168.0.10"),
        "address-wide": seed(-0.5, 1e300, 0xFFFFFFFF, -1, 1, b"300.300.300.300.1\0" b"10.0.0.1x"),
        "path": seed(1.0, 2.0, 0x250101, 0x235959, 0, b"/home/user/rec:01\\a\0C:/tmp/a?b"),
        "formats": seed(12.5, 12.49995, 7, 3, 0, b"mp4\0QRAW"),
        "date": seed(float("nan"), float("inf"), 0x991231, 0x120000, 1, b"2024/2/29\0" b"13:05"),
        "date-seconds": seed(float("-inf"), -0.0, 0x1000000, 0, 0, b"2023/12/31\0" b"23:59:59"),
        "unicode": seed(5e-324, 1.7976931348623157e308, 0, 0, 1, "\u00e9\u4e2d.1.2.3\0\U0001F600".encode()),
    }
    for name, data in seeds.items():
        write("fuzz_text_helpers", name, data)


def scenario():
    seeds = {
        "empty.json": b"{}",
        "timecode.json": b'{"timeCode": {"index": 1, "displayUnit": "deg", "oneFrame": -0.5, "startValue": 10,'
                         b' "reset": true, "resetValue": 8, "scopeDisplayIndex": 3, "decimalPlaceIndex": 2,'
                         b' "decimalDivide": true, "usingFileInfo": false, "overwrite": true, "realTime": false}}',
        "cameras.json": b'{"mode": 0, "syncCapableTypes": [1, 2], "cameras": [{"name": "A", "ip": "192.168.0.10",'
                        b' "type": 1, "documents": 2, "dummy": false, "needsErase": true}, {"ip": "192.168.0.11",'
                        b' "triggerMode": 2, "exposureTimingFlag": 1}], "files": 3}',
        "hubs.json": b'{"hubs": [{"ip": "10.0.0.1", "firmware": "2.1", "syncMode": 0, "frequency": 500,'
                     b' "frequencies": [100, 500], "connectsOn": "connect", "changeAddress": {"result": "error",'
                     b' "message": "no", "delayMs": 800}}, {"state": "disconnected"}]}',
        "misc.json": b'{"prefs": {"sync/nrack": true, "sync/freq": 1000, "sync/name": "x", "sync/f": 0.5},'
                     b' "applySync": {"result": "ok", "delayMs": 10}, "visa": true, "faults": {"connectAll": "down"},'
                     b' "generator": {"listen": "127.0.0.1", "portmapperPort": 1111, "silentAt": "device_read",'
                     b' "garbage": false, "maxLinks": 2}}',
        "refused.json": b'{"cameras": [{"ip": "1.2.3.4"}, {"ip": "1.2.3.4"}], "mode": 2.5}',
        "media.json": b'{"mode": 2, "loopSave": {"mode": true, "active": false}, "writer": {"formats": ["PNG"]},'
                      b' "cameras": [{"media": {"sd": [{"drive": "E:", "protected": true, "recordings": [{"name": "a",'
                      b' "frames": 5, "date": "2024/1/2", "time": "03:04:05"}]}], "storageUnit": [{"drive": "F:",'
                      b' "password": "p", "capacity": 10, "used": 5, "written": 3}], "cfast": [{"present": false}]},'
                      b' "partitions": [{"width": 8, "height": 6, "capacity": 1, "rate": 250}], "multiSkipA": true}]}',
        "status.json": b'{"status": {"IsRecording": true, "IsNotUndo": false, "IsFullScreen": true},'
                       b' "recordingStatus": 4, "exportSupportFile": {"result": "error"},'
                       b' "cameras": [{"connected": false, "functions": [176, 117], "bitDepth": 12,'
                       b' "realBitDepth": 10, "deviceName": "", "mobile": true}]}',
        "views.json": b'{"view": {"zoom": 0.5, "imageSize": [640, 480]}, "multiLock": true, "crossCursor": false,'
                      b' "cameras": [{"view": {"rotation": 90, "mirrorHorizontally": true, "binning": 2,'
                      b' "scaleFactor": 2, "fullImageSize": [1280, 960]}}], "files": [{"view": {"zoom": 0,'
                      b' "rotation": 270, "mirrorVertically": true}}]}',
    }
    for name, data in seeds.items():
        write("fuzz_scenario", name, data)


def input_steps():
    seeds = {
        "drag.json": b'{"drag": {"document": 1, "from": [239, 179], "to": [260, 200], "steps": 3}}',
        "mouse.json": b'{"mouse": {"document": 2, "press": [10.5, -3]}}',
        "leave.json": b'{"mouse": {"leave": true}}',
        "key.json": b'{"key": "Shift+Ctrl+Left"}',
        "refused.json": b'{"drag": {"from": [1], "to": "x", "steps": 0}, "key": "Left, Right"}',
    }
    for name, data in seeds.items():
        write("fuzz_input_steps", name, data)


def custom_info():
    item = ("<customItem><name>{}</name><value>{}</value><unit>{}</unit><display>{}</display>"
            "<usefilename>true</usefilename></customItem>")
    seeds = {
        "custom.xml": ('<?xml version="1.0" encoding="utf-8" standalone="no"?>\n<custom>\n'
                       "  <version>tarvix4host 1.0</version>\n  <customItems>"
                       + item.format("Lens", "50", "mm", "true") + item.format("Cm_Comment", "a &amp; b", "", "false")
                       + "</customItems>\n</custom>\n").encode(),
        "custom-case.xml": b"<other><customItems><customItem><NAME>x</NAME><Display>TRUE</Display>"
                           b"<usefilename>false</usefilename></customItem><customItem><value>no name</value>"
                           b"</customItem></customItems></other>",
        "job.xml": b'<JOB><Sf_TestCode unit="s">T-1</Sf_TestCode><Cm_TestDate display="false">2024/3/5</Cm_TestDate>'
                   b'<Empty unit="x"/><Own>\xe6\x9d\xb1</Own></JOB>',
        "nested.xml": b"<custom>" + b"<a>" * 70 + b"</a>" * 70 + b"</custom>",
        "broken.xml": b"<custom><customItems><customItem><name>a</name></customItem><",
    }
    for name, data in seeds.items():
        write("fuzz_custom_info", name, data)


def camera_names():
    seeds = {
        "ascii.csv": b"Lab,Alpha,Beta\n,Gamma,Delta\nLab,Alpha,Zeta\nOnlyCategory\n\n",
        "shift-jis.csv": "\u30ab\u30e1\u30e9,\u6771\u4eac,\u5927\u962a\r\n,\u672d\u5e4c\r\n".encode("shift_jis"),
        "utf-8.csv": "\ufeff\u30ab\u30e1\u30e9,\u6771\u4eac\n,a/b, .. ,x:y\n".encode("utf-8"),
        "invalid.csv": b"\x80\xff,ok\n\xe6\x9d,\x83\n",
        "forbidden.csv": b"Lab,/:*?,..,.,<>|%\"\\,  ,\tTab\n",
    }
    for name, data in seeds.items():
        write("fuzz_camera_names", name, data)


def save_lists():
    seeds = {
        "paths": b"\0main|/data/main?backup|/mnt/b??bad|three|parts?|only",
        "devices": b"\1main|/data/main?backup|/mnt/b\0" b"10.0.0.1|backup?10.0.0.2|gone\0"
                   b"10.0.0.1\0" b"10.0.0.2\0" b"10.0.0.1\0" b"10.0.0.3",
        "devices-no-paths": b"\1\0" b"10.0.0.1|x\0" b"10.0.0.1",
        "display": b"\2Camera name:true,File name:false,File name:true",
        "display-odd": b"\2File name,File name:,:true,File name:TRUE",
        "info": b"\3document=Left\nserialno=100000\ndatano=2\n=x\nno equals\nserialno=again\n",
    }
    for name, data in seeds.items():
        write("fuzz_save_lists", name, data)


def display_list():
    # [order a page reports]\n[the list as the preference holds it]
    seeds = {
        "default.txt": b"\nSyncSignalState:true,CameraState:true,<hr>,Camera name:true,Comment:false,Logo:false",
        "reordered.txt": b"Comment,HR,Camera name,Unknown\nCamera name:true,<hr>,Comment:false",
        "broken.txt": b"HR,HR,a\na,a:true,:x,b:,c:true:false,<hr>,x'><script>:true,,\xe6\x9d\xb1:true",
    }
    for name, data in seeds.items():
        write("fuzz_display_list", name, data)


def settings_file():
    import hashlib
    import json
    cameras = [{"name": "Front", "model": "HX-1 type A model 1",
                "settings": {"triggerMode": 1, "lowLightMode": 0, "dualSlopeShutter": 0,
                             "automaticExposureControl": 0, "exposureTimingFlag": 0,
                             "exposureTimingClass": 0, "etherType": 1}}]
    compact = json.dumps(cameras, separators=(",", ":"), sort_keys=True).encode()
    good = {"type": "qsetx", "version": 1, "cameras": cameras,
            "checksum": hashlib.sha256(compact).hexdigest()}
    text = json.dumps(good, indent=4).encode()
    seeds = {
        "good.qsetx": text,
        "truncated.qsetx": text[: len(text) // 2],
        "other-type.qsetx": text.replace(b'"qsetx"', b'"custom"'),
    }
    for name, data in seeds.items():
        write("fuzz_settings_file", name, data)


if __name__ == "__main__":
    visa_reply()
    visa_session()
    sim_request()
    text_helpers()
    scenario()
    input_steps()
    custom_info()
    camera_names()
    save_lists()
    display_list()
    settings_file()
