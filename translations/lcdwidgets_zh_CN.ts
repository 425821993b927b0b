<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>LCD::MenuWidgets</name>
    <message>
        <source>%1 succeeded, %2 failed</source>
        <comment>Global</comment>
        <translation>%1 个成功，%2 个失败</translation>
    </message>
    <message>
        <source>Add</source>
        <comment>Global</comment>
        <translation>添加</translation>
    </message>
    <message>
        <source>Add
Device</source>
        <comment>Global</comment>
        <translation>添加
设备</translation>
    </message>
    <message>
        <source>All %1 tasks succeeded</source>
        <comment>Global</comment>
        <translation>全部 %1 项任务成功</translation>
    </message>
    <message>
        <source>All tests passed</source>
        <comment>Global</comment>
        <translation>全部测试通过</translation>
    </message>
    <message>
        <source>Apply</source>
        <comment>Global</comment>
        <translation>应用</translation>
    </message>
    <message>
        <source>Back</source>
        <comment>Global</comment>
        <translation>返回</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>Global</comment>
        <translation>取消</translation>
    </message>
    <message>
        <source>Choose a test and press</source>
        <comment>Global</comment>
        <translation>选择一项测试后按下旋钮</translation>
    </message>
    <message>
        <source>Confirm</source>
        <comment>Global</comment>
        <translation>确认</translation>
    </message>
    <message>
        <source>Details</source>
        <comment>Global</comment>
        <translation>详情</translation>
    </message>
    <message>
        <source>Device: %1</source>
        <comment>Global</comment>
        <translation>设备：%1</translation>
    </message>
    <message>
        <source>Enter</source>
        <comment>Global</comment>
        <translation>进入</translation>
    </message>
    <message>
        <source>Factory test</source>
        <comment>Global</comment>
        <translation>工厂测试</translation>
    </message>
    <message>
        <source>Fail</source>
        <comment>Global</comment>
        <translation>不通过</translation>
    </message>
    <message>
        <source>Finished: %1 of %2</source>
        <comment>Global</comment>
        <translation>已完成 %1 / %2</translation>
    </message>
    <message>
        <source>Gateway</source>
        <comment>Global</comment>
        <translation>网关</translation>
    </message>
    <message>
        <source>Hardware version</source>
        <comment>Global</comment>
        <translation>硬件版本</translation>
    </message>
    <message>
        <source>Hold %1 for %2 s to unlock</source>
        <comment>Global</comment>
        <translation>长按“%1”%2 秒解锁</translation>
    </message>
    <message>
        <source>IP Address</source>
        <comment>Global</comment>
        <translation>IP 地址</translation>
    </message>
    <message>
        <source>IP Address:</source>
        <comment>Global</comment>
        <translation>IP 地址：</translation>
    </message>
    <message>
        <source>IP address</source>
        <comment>Global</comment>
        <translation>IP 地址</translation>
    </message>
    <message>
        <source>Invalid IP address</source>
        <comment>Global</comment>
        <translation>IP 地址无效</translation>
    </message>
    <message>
        <source>Keys</source>
        <comment>Global</comment>
        <translation>按键</translation>
    </message>
    <message>
        <source>Knob</source>
        <comment>Global</comment>
        <translation>旋钮</translation>
    </message>
    <message>
        <source>Locked</source>
        <comment>Global</comment>
        <translation>已锁定</translation>
    </message>
    <message>
        <source>MAC address</source>
        <comment>Global</comment>
        <translation>MAC 地址</translation>
    </message>
    <message>
        <source>Mac Address</source>
        <comment>Global</comment>
        <translation>MAC 地址</translation>
    </message>
    <message>
        <source>Manual</source>
        <comment>Global</comment>
        <translation>手动</translation>
    </message>
    <message>
        <source>Model</source>
        <comment>Global</comment>
        <translation>型号</translation>
    </message>
    <message>
        <source>Move the T-bar to both ends</source>
        <comment>Global</comment>
        <translation>将 T 杆推到两端</translation>
    </message>
    <message>
        <source>Network Mode</source>
        <comment>Global</comment>
        <translation>网络模式</translation>
    </message>
    <message>
        <source>No T-bar reading</source>
        <comment>Global</comment>
        <translation>无 T 杆读数</translation>
    </message>
    <message>
        <source>NumberPadOk</source>
        <comment>Global</comment>
        <translation>确定</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>Global</comment>
        <translation>确定</translation>
    </message>
    <message>
        <source>Pass</source>
        <comment>Global</comment>
        <translation>通过</translation>
    </message>
    <message>
        <source>Passed %1, failed %2, not tested %3</source>
        <comment>Global</comment>
        <translation>通过 %1，失败 %2，未测 %3</translation>
    </message>
    <message>
        <source>Press</source>
        <comment>Global</comment>
        <translation>按下</translation>
    </message>
    <message>
        <source>Press every key once</source>
        <comment>Global</comment>
        <translation>每个按键各按一次</translation>
    </message>
    <message>
        <source>Push T-Bar to Bottom</source>
        <comment>Global</comment>
        <translation>将 T 杆推到底部</translation>
    </message>
    <message>
        <source>Push T-Bar to Top</source>
        <comment>Global</comment>
        <translation>将 T 杆推到顶部</translation>
    </message>
    <message>
        <source>Reset</source>
        <comment>Global</comment>
        <translation>重置</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <comment>Global</comment>
        <translation>恢复默认</translation>
    </message>
    <message>
        <source>Screen colours</source>
        <comment>Global</comment>
        <translation>屏幕颜色</translation>
    </message>
    <message>
        <source>Screen patterns</source>
        <comment>Global</comment>
        <translation>屏幕图案</translation>
    </message>
    <message>
        <source>Select
Switcher</source>
        <comment>Global</comment>
        <translation>选择
切换台</translation>
    </message>
    <message>
        <source>Serial number</source>
        <comment>Global</comment>
        <translation>序列号</translation>
    </message>
    <message>
        <source>Software version</source>
        <comment>Global</comment>
        <translation>软件版本</translation>
    </message>
    <message>
        <source>Subnet Mask</source>
        <comment>Global</comment>
        <translation>子网掩码</translation>
    </message>
    <message>
        <source>Switcher</source>
        <comment>Global</comment>
        <translation>切换台</translation>
    </message>
    <message>
        <source>T-bar</source>
        <comment>Global</comment>
        <translation>T 杆</translation>
    </message>
    <message>
        <source>T-bar: %1
Lowest: %2 (&lt;= %4)
Highest: %3 (&gt;= %5)</source>
        <comment>Global</comment>
        <translation>T 杆：%1
最低：%2（&lt;= %4）
最高：%3（&gt;= %5）</translation>
    </message>
    <message>
        <source>TBarCorrectOperDone</source>
        <comment>Global</comment>
        <translation>完成</translation>
    </message>
    <message>
        <source>TBarCorrectOperNext</source>
        <comment>Global</comment>
        <translation>下一步</translation>
    </message>
    <message>
        <source>TBarCorrectOperStart</source>
        <comment>Global</comment>
        <translation>开始</translation>
    </message>
    <message>
        <source>TBarCorrectOperSteps</source>
        <comment>Global</comment>
        <translation>校准步骤：</translation>
    </message>
    <message>
        <source>Test failed</source>
        <comment>Global</comment>
        <translation>测试未通过</translation>
    </message>
    <message>
        <source>The panel is locked</source>
        <comment>Global</comment>
        <translation>面板已锁定</translation>
    </message>
    <message>
        <source>Turn the knob both ways</source>
        <comment>Global</comment>
        <translation>向两个方向转动旋钮</translation>
    </message>
    <message>
        <source>Turn to choose, press to confirm</source>
        <comment>Global</comment>
        <translation>转动选择，按下确认</translation>
    </message>
    <message>
        <source>Up: %1 / %3
Down: %2 / %3
Level: %4</source>
        <comment>Global</comment>
        <translation>上：%1 / %3
下：%2 / %3
速度：%4</translation>
    </message>
    <message>
        <source>s</source>
        <comment>Global</comment>
        <translation>秒</translation>
    </message>
    <message>
        <source>the knob</source>
        <comment>Global</comment>
        <translation>旋钮</translation>
    </message>
</context>
<context>
    <name>LCD::Widget::BottomButtomFrame</name>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Previous step</source>
        <translation>上一步</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
</context>
<context>
    <name>LCD::Widget::NetworkSettings</name>
    <message>
        <source>Network Settings</source>
        <translation>网络设置</translation>
    </message>
</context>
<context>
    <name>LCD::Widget::NumberPad</name>
    <message>
        <source>IP Address:</source>
        <translation>IP 地址：</translation>
    </message>
</context>
<context>
    <name>LCD::Widget::ProgressBarCtr</name>
    <message>
        <source>Succeed</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>Failure</source>
        <translation>失败</translation>
    </message>
</context>
<context>
    <name>LCD::Widget::ReminderDialogApply</name>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
</context>
<context>
    <name>LCD::Widget::ResetApplyWidget</name>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
</context>
<context>
    <name>LCD::Widget::TypeApply</name>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
</context>
<context>
    <name>LCD::Widget::TypeReset</name>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
</context>
<context>
    <name>LCD::Widget::TypeResetApply</name>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
</context>
</TS>
