<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>LCD::MenuWidgets</name>
    <message>
        <source>OK</source>
        <comment>Global</comment>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>Global</comment>
        <translation>取消</translation>
    </message>
    <message>
        <source>Details</source>
        <comment>Global</comment>
        <translation>详情</translation>
    </message>
    <message>
        <source>Reset</source>
        <comment>Global</comment>
        <translation>重置</translation>
    </message>
</context>
</TS>
