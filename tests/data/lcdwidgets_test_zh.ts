<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>LCD::MenuWidgets</name>
    <message>
        <source>Reset</source>
        <comment>Global</comment>
        <translation>重置</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
</context>
<context>
    <name>Other</name>
    <message>
        <source>Reset</source>
        <translation>复位</translation>
    </message>
</context>
</TS>
