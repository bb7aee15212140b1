<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>BusSettingWidget</name>
    <message>
        <source>Bus setting</source>
        <translation>总线设置</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Bus switch settings</source>
        <translation>总线开关设置</translation>
    </message>
    <message>
        <source>Bus configuration file import and export</source>
        <translation>总线配置文件导入和导出</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>EthernetIP master EtherCat master and Profinet master cannot be enabled at the same time!</source>
        <translation>EtherNet/IP主站、EtherCAT主站和PROFINET主站不能同时启用！</translation>
    </message>
    <message>
        <source>DeviceNet slave and DeviceNet master cannot be enabled at the same time!</source>
        <translation>DeviceNet从站和DeviceNet主站不能同时启用！</translation>
    </message>
    <message>
        <source>If ModbusTcp Master switch is ON,
 the bus free configuration switch needs to be ON!</source>
        <translation>Modbus TCP主站开关为ON时，
 总线自由配置开关也必须为ON！</translation>
    </message>
    <message>
        <source>If ModbusTcp Master or Profinet Slave switch is ON,
 the bus free configuration switch needs to be ON!</source>
        <translation>Modbus TCP主站或PROFINET从站开关为ON时，
 总线自由配置开关也必须为ON！</translation>
    </message>
    <message>
        <source>Failed to get file:%1</source>
        <translation>获取文件失败：%1</translation>
    </message>
    <message>
        <source>Failed to read file:%1</source>
        <translation>读取文件失败：%1</translation>
    </message>
    <message>
        <source>Failed to write file:%1</source>
        <translation>写入文件失败：%1</translation>
    </message>
    <message>
        <source>Failed to send file:%1</source>
        <translation>发送文件失败：%1</translation>
    </message>
    <message>
        <source>Save (%1)</source>
        <translation>保存（%1）</translation>
    </message>
    <message>
        <source>Please select ANYBUS in EtherCat slave after, Make the setting effective!</source>
        <translation>请随后在EtherCAT从站中选择ANYBUS，使设置生效！</translation>
    </message>
    <message>
        <source>Please select PNM_DEVICE in Profinet master after, Make the setting effective!</source>
        <translation>请随后在PROFINET主站中选择PNM_DEVICE，使设置生效！</translation>
    </message>
    <message>
        <source>Please select EIM_DEVICE in EthernetIP master after, Make the setting effective!</source>
        <translation>请随后在EtherNet/IP主站中选择EIM_DEVICE，使设置生效！</translation>
    </message>
    <message>
        <source>The DeviceNet master station has been opened. Please close the master station before opening the slave station.</source>
        <translation>DeviceNet主站已打开。请先关闭主站，再打开从站。</translation>
    </message>
    <message>
        <source>The DeviceNet slave station has been opened. Please close the slave station before opening the master station.</source>
        <translation>DeviceNet从站已打开。请先关闭从站，再打开主站。</translation>
    </message>
    <message>
        <source>Mes Switch</source>
        <translation>MES开关</translation>
    </message>
    <message>
        <source>EtherCatSlave Switch</source>
        <translation>EtherCAT从站开关</translation>
    </message>
    <message>
        <source>EtherCatMaster Switch</source>
        <translation>EtherCAT主站开关</translation>
    </message>
    <message>
        <source>EthernetIPSlave Switch</source>
        <translation>EtherNet/IP从站开关</translation>
    </message>
    <message>
        <source>EthernetIPMaster Switch</source>
        <translation>EtherNet/IP主站开关</translation>
    </message>
    <message>
        <source>ProfinetSlave Switch</source>
        <translation>PROFINET从站开关</translation>
    </message>
    <message>
        <source>ProfinetMaster Switch</source>
        <translation>PROFINET主站开关</translation>
    </message>
    <message>
        <source>DeviceNetSlave Switch</source>
        <translation>DeviceNet从站开关</translation>
    </message>
    <message>
        <source>DeviceNetMaster Switch</source>
        <translation>DeviceNet主站开关</translation>
    </message>
    <message>
        <source>ModbusTcpMaster Switch</source>
        <translation>Modbus TCP主站开关</translation>
    </message>
    <message>
        <source> FreeBus Switch</source>
        <translation>自由配置开关</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>%1 ●</source>
        <translation>%1 ●</translation>
    </message>
    <message>
        <source>This operation will cause the robot to restart.
 Are you sure to save the configuration?</source>
        <translation>此操作将使机器人重启。
 确定要保存配置吗？</translation>
    </message>
    <message>
        <source>Before the save operation is completed,
 clicking on the current interface is invalid.</source>
        <translation>保存操作完成之前，
 点击当前界面无效。</translation>
    </message>
    <message>
        <source>The fieldbbus is not change,please reset!</source>
        <translation>现场总线未更改，请重新设置！</translation>
    </message>
    <message>
        <source>Failed to change bus:</source>
        <translation>切换总线失败：</translation>
    </message>
    <message>
        <source>Failed to write file.</source>
        <translation>写入文件失败。</translation>
    </message>
    <message>
        <source>Successfully saved, the robot is about to restart and take effect.</source>
        <translation>保存成功，机器人即将重启以使其生效。</translation>
    </message>
    <message>
        <source>No device found!</source>
        <translation>未找到设备！</translation>
    </message>
    <message>
        <source>Do you want to export the current robot
 bus related configuration file to the USB drive?</source>
        <translation>是否将当前机器人的
 总线相关配置文件导出到U盘？</translation>
    </message>
    <message>
        <source>Exporting...</source>
        <translation>正在导出...</translation>
    </message>
    <message>
        <source>Export file success!</source>
        <translation>文件导出成功！</translation>
    </message>
    <message>
        <source>Export file failed!</source>
        <translation>文件导出失败！</translation>
    </message>
</context>
<context>
    <name>ConfigWidget</name>
    <message>
        <source>Configuration</source>
        <translation>配置</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>User Bool</source>
        <translation>用户Bool</translation>
    </message>
    <message>
        <source>User Int</source>
        <translation>用户Int</translation>
    </message>
    <message>
        <source>User Float</source>
        <translation>用户Float</translation>
    </message>
    <message>
        <source>System Bool</source>
        <translation>系统Bool</translation>
    </message>
    <message>
        <source>System Int</source>
        <translation>系统Int</translation>
    </message>
    <message>
        <source>System Float</source>
        <translation>系统Float</translation>
    </message>
    <message>
        <source>Bool</source>
        <translation>Bool</translation>
    </message>
    <message>
        <source>Int</source>
        <translation>Int</translation>
    </message>
    <message>
        <source>Float</source>
        <translation>Float</translation>
    </message>
    <message>
        <source>Reserved</source>
        <translation>保留</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>合计</translation>
    </message>
    <message>
        <source>Limit Range: %1 ~ %2, Please Fill In Again!</source>
        <translation>范围限制：%1 ~ %2，请重新填写！</translation>
    </message>
    <message>
        <source>Bytes Limit Range: %1 ~ %2, Please Fill In Again!</source>
        <translation>字节数范围限制：%1 ~ %2，请重新填写！</translation>
    </message>
    <message>
        <source>ModbusTCP:User Bool and User Int Bytes Limit Range: %2 ~ %3, Please Fill In Again!</source>
        <translation>Modbus TCP：用户Bool和用户Int的字节数范围限制：%2 ~ %3，请重新填写！</translation>
    </message>
    <message>
        <source>The total quantity cannot be zero!</source>
        <translation>总数量不能为零！</translation>
    </message>
    <message>
        <source>The current total input bytes are %1, 
exceeding the maximum bytes of 256. Please re-enter</source>
        <translation>当前输入的总字节数为%1，
超过最大字节数256。请重新输入</translation>
    </message>
    <message>
        <source>The current total input bytes are %1, 
exceeding the maximum bytes of %2. Please re-enter</source>
        <translation>当前输入的总字节数为%1，
超过最大字节数%2。请重新输入</translation>
    </message>
    <message>
        <source>The current input end address is %1. The end address
 must be less than %2. Please re-enter!</source>
        <translation>当前输入的结束地址为%1。结束地址
 必须小于%2。请重新输入！</translation>
    </message>
    <message>
        <source>%1:User Bool and User Int Bytes Limit Range: %2 ~ %3, Please Fill In Again!</source>
        <translation>%1：用户Bool和用户Int的字节数范围限制：%2 ~ %3，请重新填写！</translation>
    </message>
    <message>
        <source>%1:The total number of bytes of all bool variables and int variables in user and system variables must be a multiple of %2, Please Fill In Again!</source>
        <translation>%1：用户变量和系统变量中所有Bool变量和Int变量的总字节数必须是%2的倍数，请重新填写！</translation>
    </message>
    <message>
        <source>%1:Bytes Limit Range: %2 ~ %3, Please Fill In Again!</source>
        <translation>%1：字节数范围限制：%2 ~ %3，请重新填写！</translation>
    </message>
    <message>
        <source>%1:The Total Number Of Bytes Must Be A Multiple Of %2, Please Fill In Again!</source>
        <translation>%1：总字节数必须是%2的倍数，请重新填写！</translation>
    </message>
    <message>
        <source>The start address of ModbusTcp read-only input must be greater than the end address of write only!</source>
        <translation>Modbus TCP只读的起始地址必须大于只写的结束地址！</translation>
    </message>
    <message>
        <source>The current input read-only end address is %1, and the ModbusTcp read-only end address must be less than
 the readable and writable start address. Please re-enter</source>
        <translation>当前输入的只读结束地址为%1，Modbus TCP只读结束地址必须小于
 读写的起始地址。请重新输入</translation>
    </message>
    <message>
        <source>The current input only write end address is %1, and ModbusTcp only write end address must be less than
 the read-only start address. Please re-enter</source>
        <translation>当前输入的只写结束地址为%1，Modbus TCP只写结束地址必须小于
 只读的起始地址。请重新输入</translation>
    </message>
    <message>
        <source>The start address of the ModbusTcp readable and writable input must be greater than the end address of the read-only input!</source>
        <translation>Modbus TCP读写的起始地址必须大于只读的结束地址！</translation>
    </message>
    <message>
        <source>The current read-only start address is calculated by default from %1,
 which conflicts with writing only the address!</source>
        <translation>当前只读起始地址默认从%1开始计算，
 与只写地址冲突！</translation>
    </message>
    <message>
        <source>Conflicting with duplicate address writing only!</source>
        <translation>与只写地址重复冲突！</translation>
    </message>
    <message>
        <source>Currently, only the starting address is calculated by default from %1,
 which conflicts with a read-only address!</source>
        <translation>当前只写起始地址默认从%1开始计算，
 与只读地址冲突！</translation>
    </message>
    <message>
        <source>Conflicting with duplicate address reading only!</source>
        <translation>与只读地址重复冲突！</translation>
    </message>
    <message>
        <source>System Quantity Can Not Edit!</source>
        <translation>系统数量不可编辑！</translation>
    </message>
    <message>
        <source>Cannot set start address for quantity 0!</source>
        <translation>数量为0时不能设置起始地址！</translation>
    </message>
    <message>
        <source>Tips:
    Type  Bool  Limit  Range: 0 ~ %1!
    Type  Int  Limit  Range: 0 ~ %2!                           
    Type  Float  Limit  Range: 0 ~ %3!
    Type  Bool,Please  Fill  In  A  Multiple  of  %4!
    All Bytes Limit Range: %5 ~ %6!</source>
        <translation>提示：
    Bool类型范围限制：0 ~ %1！
    Int类型范围限制：0 ~ %2！
    Float类型范围限制：0 ~ %3！
    Bool类型请填写%4的倍数！
    总字节数范围限制：%5 ~ %6！</translation>
    </message>
    <message>
        <source>Tips:
    Type  Bool  Limit  Range: 0 ~ %1!
    Type  Int  Limit  Range: 0 ~ %2!                           
    Type  Float  Limit  Range: 0 ~ %3!
    Type  Bool,Please  Fill  In  A  Multiple  of  %4!                           
    All Bytes Limit Range: %5 ~ %6!
</source>
        <translation>提示：
    Bool类型范围限制：0 ~ %1！
    Int类型范围限制：0 ~ %2！
    Float类型范围限制：0 ~ %3！
    Bool类型请填写%4的倍数！
    总字节数范围限制：%5 ~ %6！
</translation>
    </message>
    <message>
        <source>Tips:
    Type  Bool  Limit  Range: 0 ~ %1!
    Type  Int  Limit  Range: 0 ~ %2!                           
    Type  Float  Limit  Range: 0 ~ %3!
    Type  Bool,Please  Fill  In  A  Multiple  of  %4!
    Bool and Int Bytes Limit Range: %5 ~ %6!
    All Bytes Limit Range: %7 ~ %8!
</source>
        <translation>提示：
    Bool类型范围限制：0 ~ %1！
    Int类型范围限制：0 ~ %2！
    Float类型范围限制：0 ~ %3！
    Bool类型请填写%4的倍数！
    Bool和Int字节数范围限制：%5 ~ %6！
    总字节数范围限制：%7 ~ %8！
</translation>
    </message>
    <message>
        <source>Tips:
    Type  Bool  Limit  Range: 0 ~ %1!
    Type  Int  Limit  Range: 0 ~ %2!                           
    Type  Float  Limit  Range: 0 ~ %3!
    Type  Bool,Please  Fill  In  A  Multiple  of  %4!
    Bool and Int Bytes Limit Range: %5 ~ %6!
    All Bytes Limit Range: %7 ~ %8!
    The total number of bytes must be a multiple of 8!
    Bool and Int Bytes Must Be A Multiple Of %9!</source>
        <translation>提示：
    Bool类型范围限制：0 ~ %1！
    Int类型范围限制：0 ~ %2！
    Float类型范围限制：0 ~ %3！
    Bool类型请填写%4的倍数！
    Bool和Int字节数范围限制：%5 ~ %6！
    总字节数范围限制：%7 ~ %8！
    总字节数必须是8的倍数！
    Bool和Int字节数必须是%9的倍数！</translation>
    </message>
    <message>
        <source>Tips:
    Type  Bool  Limit  Range: 0 ~ %1!
    Type  Int  Limit  Range: 0 ~ %2!        
    Type  Float  Limit  Range: 0 ~ %3!
    Type  Bool,Please  Fill  In  A  Multiple  of  %4!
    All Bytes Limit Range: %5 ~ %6!</source>
        <translation>提示：
    Bool类型范围限制：0 ~ %1！
    Int类型范围限制：0 ~ %2！
    Float类型范围限制：0 ~ %3！
    Bool类型请填写%4的倍数！
    总字节数范围限制：%5 ~ %6！</translation>
    </message>
    <message>
        <source>Tips:
    The number of Ecat main stations cannot be modified
                         Type  Bool  Limit  Range: 0 ~ %1!
                         All Bytes Limit Range: %2 ~ %3!
</source>
        <translation>提示：
    EtherCAT主站数量不可修改
    Bool类型范围限制：0 ~ %1！
    总字节数范围限制：%2 ~ %3！
</translation>
    </message>
    <message>
        <source>Tips:
    The number of EipMaster main stations cannot be modified
                         Type  Bool  Limit  Range: 0 ~ %1!
                         All Bytes Limit Range: %2 ~ %3!
</source>
        <translation>提示：
    EtherNet/IP主站数量不可修改
    Bool类型范围限制：0 ~ %1！
    总字节数范围限制：%2 ~ %3！
</translation>
    </message>
    <message>
        <source>Tips:
    The number of PfnMaster main stations cannot be modified
                         Type  Bool  Limit  Range: 0 ~ %1!
                         All Bytes Limit Range: %2 ~ %3!
</source>
        <translation>提示：
    PROFINET主站数量不可修改
    Bool类型范围限制：0 ~ %1！
    总字节数范围限制：%2 ~ %3！
</translation>
    </message>
    <message>
        <source>Tips:
 Type Bool Limit Range: 0 ~ %1!
                         Type Bool,Please Fill In A Multiple of %2!
                        All Bytes Limit Range: %3 ~ %4!
</source>
        <translation>提示：
    Bool类型范围限制：0 ~ %1！
    Bool类型请填写%2的倍数！
    总字节数范围限制：%3 ~ %4！
</translation>
    </message>
    <message>
        <source>Mtcp Slave</source>
        <translation>Mtcp从站</translation>
    </message>
    <message>
        <source>Ecat Slave</source>
        <translation>Ecat从站</translation>
    </message>
    <message>
        <source>Eip Slave</source>
        <translation>Eip从站</translation>
    </message>
    <message>
        <source>Pfn Slave</source>
        <translation>Pfn从站</translation>
    </message>
    <message>
        <source>Ecat Master</source>
        <translation>Ecat主站</translation>
    </message>
    <message>
        <source>Dn Slave </source>
        <translation>Dn从站</translation>
    </message>
    <message>
        <source>Mtcp Master</source>
        <translation>Mtcp主站</translation>
    </message>
    <message>
        <source>Eip Master</source>
        <translation>Eip主站</translation>
    </message>
    <message>
        <source>Pfn Master</source>
        <translation>Pfn主站</translation>
    </message>
    <message>
        <source>Dn Master</source>
        <translation>Dn主站</translation>
    </message>
    <message>
        <source>Read Only</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>Write Only</source>
        <translation>只写</translation>
    </message>
    <message>
        <source>Read and Write</source>
        <translation>读写</translation>
    </message>
    <message>
        <source>Data Type</source>
        <translation>数据类型</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>数量</translation>
    </message>
    <message>
        <source>Byte</source>
        <translation>字节</translation>
    </message>
    <message>
        <source>Start Address</source>
        <translation>起始地址</translation>
    </message>
    <message>
        <source>End Address</source>
        <translation>结束地址</translation>
    </message>
    <message>
        <source>Bus Variable</source>
        <translation>总线变量</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Are you sure to Save Configuration?</source>
        <translation>确定要保存配置吗？</translation>
    </message>
    <message>
        <source>Please turn off the servo first!</source>
        <translation>请先关闭伺服！</translation>
    </message>
    <message>
        <source>Please wait....</source>
        <translation>请稍候....</translation>
    </message>
    <message>
        <source>Failed to send %1 file to controller!</source>
        <translation>向控制器发送文件%1失败！</translation>
    </message>
    <message>
        <source>Save successfully, and send Configuration file to controller! Are you sure to restart robot to make it effect?</source>
        <translation>保存成功，配置文件已发送到控制器！确定要重启机器人使其生效吗？</translation>
    </message>
    <message>
        <source>Bus configuration modification failed!</source>
        <translation>总线配置修改失败！</translation>
    </message>
    <message>
        <source>Please manually power off and restart the robot later!</source>
        <translation>请稍后手动断电并重启机器人！</translation>
    </message>
</context>
<context>
    <name>DeviceNetMasterSetting</name>
    <message>
        <source>DeviceNet Master Setting</source>
        <translation>DeviceNet主站设置</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>kbps</source>
        <translation>kbps</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>MAC ID does not allow duplicates!</source>
        <translation>MAC ID不允许重复！</translation>
    </message>
    <message>
        <source>The total number of bytes in the Input cannot exceed the number of bytes configured on the bus free configuration interface!</source>
        <translation>输入的总字节数不能超过总线自由配置界面中配置的字节数！</translation>
    </message>
    <message>
        <source>The total number of bytes in the Output cannot exceed the number of bytes configured on the bus free configuration interface!</source>
        <translation>输出的总字节数不能超过总线自由配置界面中配置的字节数！</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Device %1: %2</source>
        <translation>设备%1：%2</translation>
    </message>
    <message>
        <source>The table has not been completed. Please complete the settings before saving.</source>
        <translation>表格尚未填写完整。请完成设置后再保存。</translation>
    </message>
    <message>
        <source>Are you sure to save?</source>
        <translation>确定要保存吗？</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>已连接</translation>
    </message>
    <message>
        <source>Disconnected::%1</source>
        <translation>未连接::%1</translation>
    </message>
</context>
<context>
    <name>DeviceNetSlaverSetting</name>
    <message>
        <source>DeviceNet Slave Setting</source>
        <translation>DeviceNet从站设置</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>set up</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Baud rate</source>
        <translation>波特率</translation>
    </message>
    <message>
        <source>kbps</source>
        <translation>kbps</translation>
    </message>
    <message>
        <source>MACID</source>
        <translation>MAC ID</translation>
    </message>
    <message>
        <source>connect</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Connect status</source>
        <translation>连接状态</translation>
    </message>
    <message>
        <source>MACID value must be even!</source>
        <translation>MAC ID值必须为偶数！</translation>
    </message>
    <message>
        <source>Are you sure to save?</source>
        <translation>确定要保存吗？</translation>
    </message>
    <message>
        <source>Save failed!</source>
        <translation>保存失败！</translation>
    </message>
</context>
<context>
    <name>DeviceTable</name>
    <message>
        <source>Index</source>
        <translation>序号</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Function Name</source>
        <translation>功能名称</translation>
    </message>
    <message>
        <source>Activate</source>
        <translation>激活</translation>
    </message>
</context>
<context>
    <name>EcatMasterSettingWidget</name>
    <message>
        <source>EtherCat Master Setting</source>
        <translation>EtherCAT主站设置</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>复位</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
</context>
<context>
    <name>EipMasterSettingWidget</name>
    <message>
        <source>EthernetIP Master Setting</source>
        <translation>EtherNet/IP主站设置</translation>
    </message>
    <message>
        <source>Failed to get eip_master.xml file.</source>
        <translation>获取eip_master.xml文件失败。</translation>
    </message>
    <message>
        <source>Failed to read eip_master.xml file.</source>
        <translation>读取eip_master.xml文件失败。</translation>
    </message>
    <message>
        <source>Failed to write eip_master.xml file.</source>
        <translation>写入eip_master.xml文件失败。</translation>
    </message>
    <message>
        <source>Failed to send eip_master.xml file.</source>
        <translation>发送eip_master.xml文件失败。</translation>
    </message>
</context>
<context>
    <name>EtherCatSettingWidget</name>
    <message>
        <source>Reset</source>
        <translation>复位</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Endian</source>
        <translation>字节序</translation>
    </message>
    <message>
        <source>EtherCat Slave Setting</source>
        <translation>EtherCAT从站设置</translation>
    </message>
    <message>
        <source>Are you sure to save?</source>
        <translation>确定要保存吗？</translation>
    </message>
    <message>
        <source>Failed to write file.</source>
        <translation>写入文件失败。</translation>
    </message>
</context>
<context>
    <name>EtherNetSettingWidget</name>
    <message>
        <source>EthernetIP Slave Setting</source>
        <translation>EtherNet/IP从站设置</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>The EthernetIP IP address does not match the controller netport. Please reselect.</source>
        <translation>EtherNet/IP的IP地址与控制器网口不匹配。请重新选择。</translation>
    </message>
    <message>
        <source>connect </source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Connect status</source>
        <translation>连接状态</translation>
    </message>
    <message>
        <source>Communicate performance</source>
        <translation>通信性能</translation>
    </message>
    <message>
        <source>set up</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Local Port</source>
        <translation>本地网口</translation>
    </message>
    <message>
        <source>ETH2</source>
        <translation>ETH2</translation>
    </message>
    <message>
        <source>ETH3</source>
        <translation>ETH3</translation>
    </message>
    <message>
        <source>No adapter</source>
        <translation>无适配器</translation>
    </message>
    <message>
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message>
        <source>Netmask</source>
        <translation>子网掩码</translation>
    </message>
    <message>
        <source>Endian</source>
        <translation>字节序</translation>
    </message>
    <message>
        <source>Are you sure to save?</source>
        <translation>确定要保存吗？</translation>
    </message>
</context>
<context>
    <name>FbMainWidget</name>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>An import was neither finished nor undone: the controller may hold a mixture of files. Press Import on the page of the bus switches.</source>
        <translation>有一次导入既未完成也未撤销：控制器上可能混有新旧文件。请在总线设置页面按“导入”。</translation>
    </message>
    <message>
        <source>%1 ●</source>
        <translation>%1 ●</translation>
    </message>
    <message>
        <source>Mes</source>
        <translation>MES</translation>
    </message>
    <message>
        <source>Pfn</source>
        <translation>PROFINET 从站</translation>
    </message>
    <message>
        <source>EthCat</source>
        <translation>EtherCAT 从站</translation>
    </message>
    <message>
        <source>Eip</source>
        <translation>EtherNet/IP 从站</translation>
    </message>
    <message>
        <source>BusSetting</source>
        <translation>总线设置</translation>
    </message>
    <message>
        <source>Heartbeat</source>
        <translation>心跳检测</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>配置</translation>
    </message>
    <message>
        <source>Ecm</source>
        <translation>EtherCAT 主站</translation>
    </message>
    <message>
        <source>Dns</source>
        <translation>DeviceNet 从站</translation>
    </message>
    <message>
        <source>Mbc</source>
        <translation>Modbus TCP 主站</translation>
    </message>
    <message>
        <source>Eim</source>
        <translation>EtherNet/IP 主站</translation>
    </message>
    <message>
        <source>Pnm</source>
        <translation>PROFINET 主站</translation>
    </message>
    <message>
        <source>Dnm</source>
        <translation>DeviceNet 主站</translation>
    </message>
    <message>
        <source>Pfss</source>
        <translation>PROFIsafe</translation>
    </message>
    <message>
        <source>Mtcp</source>
        <translation>Modbus TCP 从站</translation>
    </message>
    <message>
        <source>The bus configuration could not be read from the controller.</source>
        <translation>无法从控制器读取总线配置。</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>重试</translation>
    </message>
</context>
<context>
    <name>FinsTcpSettingWidget</name>
    <message>
        <source>FinsTCP setting</source>
        <translation>FINS/TCP设置</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Enable FinsTCP</source>
        <translation>启用FINS/TCP</translation>
    </message>
    <message>
        <source>Connect State</source>
        <translation>连接状态</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Server IP</source>
        <translation>服务器IP</translation>
    </message>
    <message>
        <source>Server Port</source>
        <translation>服务器端口</translation>
    </message>
    <message>
        <source>Client Node</source>
        <translation>客户端节点</translation>
    </message>
    <message>
        <source>Read Address</source>
        <translation>读取地址</translation>
    </message>
    <message>
        <source>Write Address</source>
        <translation>写入地址</translation>
    </message>
    <message>
        <source>Local Port</source>
        <translation>本地网口</translation>
    </message>
    <message>
        <source>ETH2</source>
        <translation>ETH2</translation>
    </message>
    <message>
        <source>ETH3</source>
        <translation>ETH3</translation>
    </message>
    <message>
        <source>Auto Connect</source>
        <translation>自动连接</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Are you sure to save?</source>
        <translation>确定要保存吗？</translation>
    </message>
    <message>
        <source>Save successfully.</source>
        <translation>保存成功。</translation>
    </message>
</context>
<context>
    <name>HeartbeatDetectionWidget</name>
    <message>
        <source>Heartbeat Detection</source>
        <translation>心跳检测</translation>
    </message>
    <message>
        <source>save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>switch</source>
        <translation>开关</translation>
    </message>
    <message>
        <source>time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>ModbusTcp Slave</source>
        <translation>Modbus TCP从站</translation>
    </message>
    <message>
        <source>EtherCat Slave</source>
        <translation>EtherCAT从站</translation>
    </message>
    <message>
        <source>Profinet Slave</source>
        <translation>PROFINET从站</translation>
    </message>
    <message>
        <source>EthernetIP Slave</source>
        <translation>EtherNet/IP从站</translation>
    </message>
    <message>
        <source>EtherCat Master</source>
        <translation>EtherCAT主站</translation>
    </message>
    <message>
        <source>DeviceNet Slave</source>
        <translation>DeviceNet从站</translation>
    </message>
    <message>
        <source>ModbusTcp Master</source>
        <translation>Modbus TCP主站</translation>
    </message>
    <message>
        <source>EthernetIP Master</source>
        <translation>EtherNet/IP主站</translation>
    </message>
    <message>
        <source>Profinet Master</source>
        <translation>PROFINET主站</translation>
    </message>
    <message>
        <source>DeviceNet Master</source>
        <translation>DeviceNet主站</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>%1, time</source>
        <translation>%1，时间</translation>
    </message>
    <message>
        <source>Are you sure to save the data ?</source>
        <translation>确定要保存数据吗？</translation>
    </message>
    <message>
        <source>Save successfully.</source>
        <translation>保存成功。</translation>
    </message>
</context>
<context>
    <name>ImportFolderDialog</name>
    <message>
        <source>Choose the bus configuration to import</source>
        <translation>选择要导入的总线配置</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
</context>
<context>
    <name>ImportJudge</name>
    <message>
        <source>is empty</source>
        <translation>为空</translation>
    </message>
    <message>
        <source>is larger than any file of a controller</source>
        <translation>大于控制器的任何文件</translation>
    </message>
    <message>
        <source>is no text</source>
        <translation>不是文本</translation>
    </message>
    <message>
        <source>is not in UTF-8</source>
        <translation>不是UTF-8编码</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>第%1行：%2</translation>
    </message>
    <message>
        <source>begins with &quot;%1&quot; instead of &quot;%2&quot;</source>
        <translation>以“%1”而不是“%2”开头</translation>
    </message>
    <message>
        <source>has no &quot;%1&quot;</source>
        <translation>没有“%1”</translation>
    </message>
    <message>
        <source>ends in the middle of a device</source>
        <translation>在某个设备的中间结束</translation>
    </message>
    <message>
        <source>holds more than any file of a controller</source>
        <translation>内容多于控制器的任何文件</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>无法读取</translation>
    </message>
    <message>
        <source>holds a quantity or an address that is no number in its range</source>
        <translation>含有不在其范围内的数量或地址</translation>
    </message>
    <message>
        <source>It holds no file of a bus configuration.</source>
        <translation>其中没有总线配置的文件。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>ImportPreviewDialog</name>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>different</source>
        <translation>不同</translation>
    </message>
    <message>
        <source>new</source>
        <translation>新增</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>缺少</translation>
    </message>
    <message>
        <source>same</source>
        <translation>相同</translation>
    </message>
    <message>
        <source>missing: a link</source>
        <translation>缺少：链接</translation>
    </message>
    <message>
        <source>missing: too large</source>
        <translation>缺少：过大</translation>
    </message>
    <message>
        <source>Import of %1</source>
        <translation>导入%1</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>The controller holds these files already.</source>
        <translation>控制器中已有这些文件。</translation>
    </message>
    <message>
        <source>Different and new files replace those of the controller; the others stay.</source>
        <translation>不同的和新增的文件将替换控制器的文件，其余保持不变。</translation>
    </message>
    <message>
        <source>This is not a whole export: it brings %1 of %2 files.</source>
        <translation>这不是完整的导出：共%2个文件，仅有%1个。</translation>
    </message>
    <message>
        <source>Bus switch</source>
        <translation>总线开关</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>当前</translation>
    </message>
    <message>
        <source>After</source>
        <translation>之后</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>This configuration cannot be imported:</source>
        <translation>无法导入此配置：</translation>
    </message>
    <message>
        <source>The PROFINET slave cannot be on in this controller: it will be imported switched off.</source>
        <translation>此控制器不能启用PROFINET从站：将以关闭状态导入。</translation>
    </message>
</context>
<context>
    <name>MasterSettingsPanel</name>
    <message>
        <source>Slave Count</source>
        <translation>从站数量</translation>
    </message>
    <message>
        <source>DynAlmEnable</source>
        <translation>动态报警使能</translation>
    </message>
    <message>
        <source>Disable Timeout</source>
        <translation>禁用超时</translation>
    </message>
    <message>
        <source>Enable Timeout</source>
        <translation>使能超时</translation>
    </message>
</context>
<context>
    <name>MasterSlaveList</name>
    <message>
        <source>Number</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>Fixed  Status</source>
        <translation>固定状态</translation>
    </message>
    <message>
        <source> Dynamic Status</source>
        <translation>动态状态</translation>
    </message>
    <message>
        <source> Connected Status</source>
        <translation>连接状态</translation>
    </message>
    <message>
        <source>Coupling Status</source>
        <translation>耦合状态</translation>
    </message>
    <message>
        <source>Decoupling Status</source>
        <translation>解耦状态</translation>
    </message>
</context>
<context>
    <name>MasterTablePage</name>
    <message>
        <source>Reset</source>
        <translation>复位</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
</context>
<context>
    <name>MesSettingWidget</name>
    <message>
        <source>Mes setting</source>
        <translation>MES设置</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Start Monitor</source>
        <translation>开始监听</translation>
    </message>
    <message>
        <source>Local Port</source>
        <translation>本地网口</translation>
    </message>
    <message>
        <source>ETH2</source>
        <translation>ETH2</translation>
    </message>
    <message>
        <source>ETH3</source>
        <translation>ETH3</translation>
    </message>
    <message>
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>端口</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>ASK</source>
        <translation>ASK</translation>
    </message>
    <message>
        <source>BROADCAST</source>
        <translation>BROADCAST</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>协议</translation>
    </message>
    <message>
        <source>ROBOT</source>
        <translation>ROBOT</translation>
    </message>
    <message>
        <source>AUX</source>
        <translation>AUX</translation>
    </message>
    <message>
        <source>Interval time</source>
        <translation>间隔时间</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>The set port conflicts with %1 default port.</source>
        <translation>设置的端口与%1默认端口冲突。</translation>
    </message>
    <message>
        <source>Are you sure to save?</source>
        <translation>确定要保存吗？</translation>
    </message>
    <message>
        <source>Save successfully.</source>
        <translation>保存成功。</translation>
    </message>
    <message>
        <source>Stop Monitor</source>
        <translation>停止监听</translation>
    </message>
</context>
<context>
    <name>MtcpMasterSetting</name>
    <message>
        <source>ModbusTcp Master setting</source>
        <translation>Modbus TCP主站设置</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>connect</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Connection status</source>
        <translation>连接状态</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>automatic connection</source>
        <translation>自动连接</translation>
    </message>
    <message>
        <source>set up</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Read Endian</source>
        <translation>读取字节序</translation>
    </message>
    <message>
        <source>Write Endian</source>
        <translation>写入字节序</translation>
    </message>
    <message>
        <source>Connect timeout</source>
        <translation>连接超时</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Slave IP</source>
        <translation>从站IP</translation>
    </message>
    <message>
        <source>Slave id</source>
        <translation>从站ID</translation>
    </message>
    <message>
        <source>Slave port</source>
        <translation>从站端口</translation>
    </message>
    <message>
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>端口</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Timeout</source>
        <translation>超时</translation>
    </message>
    <message>
        <source>Failed to get mtcp_master.xml file.</source>
        <translation>获取mtcp_master.xml文件失败。</translation>
    </message>
    <message>
        <source>Failed to read mtcp_master.xml file.</source>
        <translation>读取mtcp_master.xml文件失败。</translation>
    </message>
    <message>
        <source>Failed to write mtcp_master.xml file.</source>
        <translation>写入mtcp_master.xml文件失败。</translation>
    </message>
    <message>
        <source>Failed to send mtcp_master.xml file.</source>
        <translation>发送mtcp_master.xml文件失败。</translation>
    </message>
    <message>
        <source>Are you sure to save?</source>
        <translation>确定要保存吗？</translation>
    </message>
    <message>
        <source>%1 cannot be empty!</source>
        <translation>%1不能为空！</translation>
    </message>
    <message>
        <source>Successfully saved.</source>
        <translation>保存成功。</translation>
    </message>
    <message>
        <source>IP address format is wrong!</source>
        <translation>IP地址格式错误！</translation>
    </message>
    <message>
        <source>The port number is already occupied!</source>
        <translation>端口号已被占用！</translation>
    </message>
</context>
<context>
    <name>MtcpSlaveSetting</name>
    <message>
        <source>ModbusTcp Slave Setting</source>
        <translation>Modbus TCP从站设置</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Communicate performance</source>
        <translation>通信性能</translation>
    </message>
</context>
<context>
    <name>PageBase</name>
    <message>
        <source>Failed to get file.</source>
        <translation>获取文件失败。</translation>
    </message>
    <message>
        <source>Loaded now. Look at the settings, then save.</source>
        <translation>现已加载。请查看设置后再保存。</translation>
    </message>
    <message>
        <source>Are you sure to save?</source>
        <translation>确定要保存吗？</translation>
    </message>
    <message>
        <source>Please turn off the servo first!</source>
        <translation>请先关闭伺服！</translation>
    </message>
    <message>
        <source>Save successfully, Are you sure to restart robot to make it effect?</source>
        <translation>保存成功，确定要重启机器人使其生效吗？</translation>
    </message>
    <message>
        <source>Please close and reopen the teaching pendant.</source>
        <translation>请关闭并重新打开示教器。</translation>
    </message>
    <message>
        <source>Please manually power off and restart the robot!</source>
        <translation>请手动断电并重启机器人！</translation>
    </message>
    <message>
        <source>Failed to read file.</source>
        <translation>读取文件失败。</translation>
    </message>
    <message>
        <source>Failed to write file.</source>
        <translation>写入文件失败。</translation>
    </message>
    <message>
        <source>Failed to send file.</source>
        <translation>发送文件失败。</translation>
    </message>
    <message>
        <source>override.cfg was changed on the controller since it was read. It has been loaded again.</source>
        <translation>override.cfg读取之后在控制器上已被更改，现已重新加载。</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>重新加载</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>保留</translation>
    </message>
    <message>
        <source>Changed on the controller since it was read</source>
        <translation>读取之后控制器上已有更改</translation>
    </message>
    <message>
        <source>Changed on the controller since it was read. Reload?</source>
        <translation>读取之后控制器上已有更改。是否重新加载？</translation>
    </message>
</context>
<context>
    <name>PageHead</name>
    <message>
        <source>Not read from the controller: these are not its settings</source>
        <translation>未从控制器读取：这不是控制器的设置</translation>
    </message>
    <message>
        <source>Read from the controller %1</source>
        <translation>读取自控制器 %1</translation>
    </message>
</context>
<context>
    <name>Pfb_PfnSettingWidget</name>
    <message>
        <source>Profinet Slave Setting</source>
        <translation>PROFINET从站设置</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>connect</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Connect status</source>
        <translation>连接状态</translation>
    </message>
    <message>
        <source>Communicate performance</source>
        <translation>通信性能</translation>
    </message>
    <message>
        <source>set up</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Endian</source>
        <translation>字节序</translation>
    </message>
    <message>
        <source>Detects connected switch</source>
        <translation>连接检测开关</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Are you sure to save?</source>
        <translation>确定要保存吗？</translation>
    </message>
</context>
<context>
    <name>PfnMasterSetting</name>
    <message>
        <source>Profinet Master Setting</source>
        <translation>PROFINET主站设置</translation>
    </message>
    <message>
        <source>Failed to get pfn_master.xml file.</source>
        <translation>获取pfn_master.xml文件失败。</translation>
    </message>
    <message>
        <source>Failed to read pfn_master.xml file.</source>
        <translation>读取pfn_master.xml文件失败。</translation>
    </message>
    <message>
        <source>Failed to write pnm_master.xml file.</source>
        <translation>写入pnm_master.xml文件失败。</translation>
    </message>
    <message>
        <source>Failed to send pnm_master.xml file.</source>
        <translation>发送pnm_master.xml文件失败。</translation>
    </message>
</context>
<context>
    <name>ProfiSAFESlaveWidget</name>
    <message>
        <source>ProfiSAFE Slave Setting</source>
        <translation>PROFIsafe从站设置</translation>
    </message>
    <message>
        <source>Device status</source>
        <translation>设备状态</translation>
    </message>
    <message>
        <source>Error confirmation</source>
        <translation>错误确认</translation>
    </message>
    <message>
        <source>Emg stop reset</source>
        <translation>急停复位</translation>
    </message>
    <message>
        <source>Feed voltage mode</source>
        <translation>供电电压模式</translation>
    </message>
    <message>
        <source>not used</source>
        <translation>未使用</translation>
    </message>
    <message>
        <source>Protocol data</source>
        <translation>协议数据</translation>
    </message>
    <message>
        <source>from KRC</source>
        <translation>来自KRC</translation>
    </message>
    <message>
        <source>from external plc</source>
        <translation>来自外部PLC</translation>
    </message>
    <message>
        <source>Desc</source>
        <translation>描述</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>输出</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>输入</translation>
    </message>
</context>
<context>
    <name>ProgressDialog</name>
    <message>
        <source>Dialog</source>
        <translation>对话框</translation>
    </message>
    <message>
        <source>Please waitting ...</source>
        <translation>请稍候 ...</translation>
    </message>
</context>
<context>
    <name>UsbImport</name>
    <message>
        <source>... and %1 more</source>
        <translation>... 以及另外%1个</translation>
    </message>
    <message>
        <source>These files could not be put back:
%1</source>
        <translation>以下文件无法恢复：
%1</translation>
    </message>
    <message>
        <source>The former files were put back.</source>
        <translation>原文件已恢复。</translation>
    </message>
    <message>
        <source>These files were saved since by somebody else and stay as they are:
%1</source>
        <translation>以下文件之后被他人保存，保持不变：
%1</translation>
    </message>
    <message>
        <source>Comparing...</source>
        <translation>正在比较...</translation>
    </message>
    <message>
        <source>Its bus switches cannot be read.</source>
        <translation>无法读取其中的总线开关。</translation>
    </message>
    <message>
        <source>The folder %1 cannot be imported:
%2</source>
        <translation>无法导入文件夹%1：
%2</translation>
    </message>
    <message>
        <source>The folder %1 is not a whole export:
it brings %2 of %3 files. The others stay as they are.
Import it all the same?</source>
        <translation>文件夹%1不是完整的导出：
共%3个文件，仅有%2个。其余保持不变。
仍要导入吗？</translation>
    </message>
    <message>
        <source>Importing...</source>
        <translation>正在导入...</translation>
    </message>
    <message>
        <source>Import file failed!</source>
        <translation>文件导入失败！</translation>
    </message>
    <message>
        <source>Nothing was changed on the controller.</source>
        <translation>控制器上没有任何更改。</translation>
    </message>
    <message>
        <source>Try again to put the former files back?</source>
        <translation>是否再次尝试恢复原文件？</translation>
    </message>
    <message>
        <source>The controller holds a mixture of former and imported files.
It should not be restarted before they are put back with Import.</source>
        <translation>控制器上混有原文件和导入的文件。
在用“导入”恢复之前不应重启控制器。</translation>
    </message>
    <message>
        <source>What an earlier import has replaced cannot be read now.
Please try again.</source>
        <translation>目前无法读取先前导入所替换的内容。
请重试。</translation>
    </message>
    <message>
        <source>An earlier import was neither finished nor undone.
Put the former files of the controller back now?
A new import gives them up once it is sent.</source>
        <translation>先前的导入既未完成也未撤销。
现在恢复控制器的原文件吗？
新的导入一旦发送，原文件将被放弃。</translation>
    </message>
    <message>
        <source>The USB drive was removed.</source>
        <translation>U盘已被拔出。</translation>
    </message>
    <message>
        <source>The file %1 could not be read.</source>
        <translation>无法读取文件%1。</translation>
    </message>
    <message>
        <source>The file %1 could not be fetched from the controller.</source>
        <translation>无法从控制器获取文件%1。</translation>
    </message>
    <message>
        <source>The file %1 of the pendant could not be written.</source>
        <translation>无法写入示教器的文件%1。</translation>
    </message>
    <message>
        <source>The file %1 of the controller has changed meanwhile.</source>
        <translation>控制器的文件%1在此期间已更改。</translation>
    </message>
    <message>
        <source>The file %1 could not be sent to the controller.</source>
        <translation>无法将文件%1发送到控制器。</translation>
    </message>
    <message>
        <source>Please turn off the servo first!</source>
        <translation>请先关闭伺服！</translation>
    </message>
    <message>
        <source>The pendant&apos;s copy of %1 has changed meanwhile.</source>
        <translation>示教器上%1的副本在此期间已更改。</translation>
    </message>
    <message>
        <source>The files of the controller take effect with the next restart.</source>
        <translation>控制器的文件将在下次重启后生效。</translation>
    </message>
</context>
<context>
    <name>UsbTransfer</name>
    <message>
        <source>Another pendant is importing or exporting in the same directory.</source>
        <translation>另一个示教器正在同一目录中导入或导出。</translation>
    </message>
    <message>
        <source>The last import or export is still coming to its end.
Please try again in a moment.</source>
        <translation>上一次导入或导出尚未结束。
请稍后重试。</translation>
    </message>
    <message>
        <source>An earlier import was neither finished nor undone.
With Import the former files can be put back.
Save the bus switches all the same?</source>
        <translation>先前的导入既未完成也未撤销。
可用“导入”恢复原文件。
仍要保存总线开关吗？</translation>
    </message>
    <message>
        <source>No exported bus configuration found on the USB drive!</source>
        <translation>U盘上未找到已导出的总线配置！</translation>
    </message>
</context>
</TS>
