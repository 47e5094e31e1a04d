<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>synccontrol</name>
    <message>
        <source>synccontrol</source>
        <translation>synccontrol</translation>
    </message>
</context>
</TS>
