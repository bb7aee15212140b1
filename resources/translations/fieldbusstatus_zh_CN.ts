<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>ChangesPage</name>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>Import undone</source>
        <translation>已撤销导入</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... 以及另外%1个</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n个文件</numerusform>
        </translation>
    </message>
    <message>
        <source>The controller holds the former files already.</source>
        <translation>控制器中已是原文件。</translation>
    </message>
    <message>
        <source>The former version of %1 can no longer be read.</source>
        <translation>已无法读取%1的原版本。</translation>
    </message>
    <message>
        <source>The controller does not give %1.</source>
        <translation>控制器未给出%1。</translation>
    </message>
    <message>
        <source>%1 was changed since: it stays as it is.</source>
        <translation>%1此后已更改，保持不变。</translation>
    </message>
    <message>
        <source>Please turn off the servo first!</source>
        <translation>请先关闭伺服！</translation>
    </message>
    <message>
        <source>The pendant cannot keep the present version of %1.</source>
        <translation>示教器无法保留%1的当前版本。</translation>
    </message>
    <message>
        <source>%1 did not arrive as it was sent.</source>
        <translation>%1未按发送内容到达。</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>更改</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>What was changed</source>
        <translation>更改内容</translation>
    </message>
    <message>
        <source>This pendant has not changed any file so far.</source>
        <translation>本示教器尚未更改任何文件。</translation>
    </message>
    <message>
        <source>Touch a change to choose it.</source>
        <translation>请触摸一项更改以选择。</translation>
    </message>
    <message>
        <source>Chosen: %1, %2</source>
        <translation>已选择：%1，%2</translation>
    </message>
    <message>
        <source>%1: it cannot be put back, as not all of it was kept or sent.</source>
        <translation>%1：由于未全部保留或发送，无法恢复。</translation>
    </message>
    <message>
        <source>Put these files back as they were before %1?
%2</source>
        <translation>是否将这些文件恢复到%1之前的状态？
%2</translation>
    </message>
    <message>
        <source>Nothing was put back.</source>
        <translation>未恢复任何文件。</translation>
    </message>
    <message>
        <source>These files were put back before:
%1</source>
        <translation>以下文件此前已恢复：
%1</translation>
    </message>
    <message>
        <source>Save successfully.</source>
        <translation>保存成功。</translation>
    </message>
    <message>
        <source>Save successfully, Are you sure to restart robot to make it effect?</source>
        <translation>保存成功，确定要重启机器人使其生效吗？</translation>
    </message>
</context>
<context>
    <name>DeviceNetCodes</name>
    <message>
        <source>no fault</source>
        <translation>无故障</translation>
    </message>
    <message>
        <source>the network has no link</source>
        <translation>网络无连接</translation>
    </message>
    <message>
        <source>no answer on the network</source>
        <translation>网络上无应答</translation>
    </message>
    <message>
        <source>another device has its MAC ID</source>
        <translation>另一个设备使用其MAC ID</translation>
    </message>
    <message>
        <source>its MAC ID is none from 1 to 63</source>
        <translation>其MAC ID不在1至63之间</translation>
    </message>
    <message>
        <source>code %1 of the master&apos;s manual</source>
        <translation>主站手册中的代码%1</translation>
    </message>
</context>
<context>
    <name>FileChanges</name>
    <message>
        <source>No setting was changed.</source>
        <translation>没有设置被更改。</translation>
    </message>
    <message>
        <source>The transfer failed; what it left behind is not known.</source>
        <translation>传输失败；留下的内容未知。</translation>
    </message>
    <message>
        <source>The former file could not be kept.</source>
        <translation>原文件未能保留。</translation>
    </message>
    <message>
        <source>What was sent could not be read back.</source>
        <translation>已发送的内容未能读回。</translation>
    </message>
    <message>
        <source>What was kept can no longer be read.</source>
        <translation>已保留的内容无法再读取。</translation>
    </message>
</context>
<context>
    <name>Findings</name>
    <message>
        <source>The MAC ID %1 stands for two devices of the scan list.</source>
        <translation>扫描列表中有两个设备使用MAC ID %1。</translation>
    </message>
    <message>
        <source>the devices</source>
        <translation>相关设备</translation>
    </message>
    <message>
        <source>Give each device a MAC ID of its own on the DeviceNet master page.</source>
        <translation>请在DeviceNet主站页面为每个设备设置各自的MAC ID。</translation>
    </message>
    <message>
        <source>The device %2 has the MAC ID %1, which is the master&apos;s own.</source>
        <translation>设备%2的MAC ID %1是主站自己的。</translation>
    </message>
    <message>
        <source>the device and WS_ID</source>
        <translation>设备和WS_ID</translation>
    </message>
    <message>
        <source>Change the device&apos;s MAC ID or the WS_ID on the DeviceNet master page.</source>
        <translation>请在DeviceNet主站页面更改设备的MAC ID或WS_ID。</translation>
    </message>
    <message>
        <source>The MAC ID %1 of the device %2 is outside 1 to 63.</source>
        <translation>设备%2的MAC ID %1超出1至63的范围。</translation>
    </message>
    <message>
        <source>the MAC ID</source>
        <translation>MAC ID</translation>
    </message>
    <message>
        <source>Enter the MAC ID that is set on the device.</source>
        <translation>请输入设备上设置的MAC ID。</translation>
    </message>
    <message>
        <source>The MAC ID %1 of the DeviceNet slave is odd.</source>
        <translation>DeviceNet从站的MAC ID %1为奇数。</translation>
    </message>
    <message>
        <source>Enter an even MAC ID, 2 to 62, on the DeviceNet slave page.</source>
        <translation>请在DeviceNet从站页面输入2至62之间的偶数MAC ID。</translation>
    </message>
    <message>
        <source>The MAC ID &quot;%1&quot; of the DeviceNet slave is no number from 2 to 62.</source>
        <translation>DeviceNet从站的MAC ID“%1”不是2至62之间的数字。</translation>
    </message>
    <message>
        <source>The baud rate %2 of the %1 is none of 125, 250 and 500 kbps.</source>
        <translation>%1的波特率%2不是125、250或500 kbps。</translation>
    </message>
    <message>
        <source>the baud rate</source>
        <translation>波特率</translation>
    </message>
    <message>
        <source>Choose the rate of the network on the page of the role.</source>
        <translation>请在该角色的页面选择网络的波特率。</translation>
    </message>
    <message>
        <source>The devices send %1 bytes, but only %2 are mapped.</source>
        <translation>设备发送%1个字节，但只映射了%2个。</translation>
    </message>
    <message>
        <source>the sum of the inputs and the mapped Bools</source>
        <translation>输入总和与已映射的Bool</translation>
    </message>
    <message>
        <source>Map more read-only Bools of the DeviceNet master, or make the devices&apos; inputs smaller.</source>
        <translation>请为DeviceNet主站映射更多只读Bool，或减小设备的输入。</translation>
    </message>
    <message>
        <source>The devices take %1 bytes, but only %2 are mapped.</source>
        <translation>设备接收%1个字节，但只映射了%2个。</translation>
    </message>
    <message>
        <source>the sum of the outputs and the mapped Bools</source>
        <translation>输出总和与已映射的Bool</translation>
    </message>
    <message>
        <source>Map more write-only Bools of the DeviceNet master, or make the devices&apos; outputs smaller.</source>
        <translation>请为DeviceNet主站映射更多只写Bool，或减小设备的输出。</translation>
    </message>
    <message>
        <source>The registers of the device %1 end at %2, beyond the area, which ends at %3.</source>
        <translation>设备%1的寄存器结束于%2，超出结束于%3的区域。</translation>
    </message>
    <message>
        <source>the block and the area</source>
        <translation>数据块和区域</translation>
    </message>
    <message>
        <source>Save the scan list again on the DeviceNet master page: it lays the registers out anew.</source>
        <translation>请在DeviceNet主站页面重新保存扫描列表：寄存器会重新分配。</translation>
    </message>
    <message>
        <source>The devices %1 and %2 share registers.</source>
        <translation>设备%1和%2共用寄存器。</translation>
    </message>
    <message>
        <source>the two blocks</source>
        <translation>两个数据块</translation>
    </message>
    <message>
        <source>The device %1 has neither inputs nor outputs.</source>
        <translation>设备%1既无输入也无输出。</translation>
    </message>
    <message>
        <source>its bytes</source>
        <translation>其字节数</translation>
    </message>
    <message>
        <source>Enter its sizes from its data sheet, or delete it.</source>
        <translation>请输入其数据手册中的大小，或将其删除。</translation>
    </message>
    <message>
        <source>The device %1 has %2 bytes in one direction; the page takes up to 64.</source>
        <translation>设备%1在一个方向上有%2个字节；页面最多允许64个。</translation>
    </message>
    <message>
        <source>Check the size against the device&apos;s data sheet.</source>
        <translation>请与设备的数据手册核对大小。</translation>
    </message>
    <message>
        <source>The DeviceNet master is on, but its scan list is empty.</source>
        <translation>DeviceNet主站已打开，但其扫描列表为空。</translation>
    </message>
    <message>
        <source>the number of devices</source>
        <translation>设备数量</translation>
    </message>
    <message>
        <source>Add the devices on the DeviceNet master page, or switch the role off.</source>
        <translation>请在DeviceNet主站页面添加设备，或关闭该角色。</translation>
    </message>
    <message>
        <source>%1: %2 %3 are mapped, and at most %4 may be.</source>
        <translation>%1：已映射%2个%3，最多允许%4个。</translation>
    </message>
    <message>
        <source>the quantity</source>
        <translation>数量</translation>
    </message>
    <message>
        <source>Enter a smaller quantity on the I/O mapping page.</source>
        <translation>请在配置页面输入较小的数量。</translation>
    </message>
    <message>
        <source>%1: %2 Bools are no multiple of %3.</source>
        <translation>%1：%2个Bool不是%3的倍数。</translation>
    </message>
    <message>
        <source>Enter the quantity again on the I/O mapping page: it is rounded up.</source>
        <translation>请在配置页面重新输入数量：会向上取整。</translation>
    </message>
    <message>
        <source>%1: %2 bytes are mapped, and %3 to %4 may be.</source>
        <translation>%1：已映射%2个字节，允许范围为%3至%4。</translation>
    </message>
    <message>
        <source>the sum of the bytes</source>
        <translation>字节总和</translation>
    </message>
    <message>
        <source>Change quantities on the I/O mapping page until the sum is in the range.</source>
        <translation>请在配置页面更改数量，使总和在范围内。</translation>
    </message>
    <message>
        <source>%1: Bool and Int take %2 bytes, and %3 to %4 may be.</source>
        <translation>%1：Bool和Int占%2个字节，允许范围为%3至%4。</translation>
    </message>
    <message>
        <source>%1: %2 bytes are no multiple of %3.</source>
        <translation>%1：%2个字节不是%3的倍数。</translation>
    </message>
    <message>
        <source>the sum of the bytes, the system&apos;s among them</source>
        <translation>包括系统在内的字节总和</translation>
    </message>
    <message>
        <source>Change quantities on the I/O mapping page until the sum is a multiple.</source>
        <translation>请在配置页面更改数量，使总和为其倍数。</translation>
    </message>
    <message>
        <source>%1: %2 and %3 lie on the same addresses.</source>
        <translation>%1：%2和%3的地址相同。</translation>
    </message>
    <message>
        <source>the addresses of both</source>
        <translation>两者的地址</translation>
    </message>
    <message>
        <source>Enter one of the quantities again on the I/O mapping page: the area is laid out anew.</source>
        <translation>请在配置页面重新输入其中一个数量：区域会重新分配。</translation>
    </message>
    <message>
        <source>%1: %2 ends at %4, before it starts at %3.</source>
        <translation>%1：%2结束于%4，早于其起始%3。</translation>
    </message>
    <message>
        <source>the addresses</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Enter the quantity again on the I/O mapping page: the area is laid out anew.</source>
        <translation>请在配置页面重新输入数量：区域会重新分配。</translation>
    </message>
    <message>
        <source>%1: the addresses of %2 hold another number of variables than its quantity says.</source>
        <translation>%1：%2的地址所容纳的变量数与其数量不符。</translation>
    </message>
    <message>
        <source>quantity and addresses</source>
        <translation>数量和地址</translation>
    </message>
    <message>
        <source>The blocks %2 and %3 of the %1 lie on the same registers.</source>
        <translation>%1的数据块%2和%3位于相同的寄存器。</translation>
    </message>
    <message>
        <source>the registers of both</source>
        <translation>两者的寄存器</translation>
    </message>
    <message>
        <source>Move one of them on the I/O mapping page.</source>
        <translation>请在配置页面移动其中一个。</translation>
    </message>
    <message>
        <source>%1: the registers %2 to %3 are outside %4 to %5.</source>
        <translation>%1：寄存器%2至%3超出%4至%5的范围。</translation>
    </message>
    <message>
        <source>the registers</source>
        <translation>寄存器</translation>
    </message>
    <message>
        <source>Enter another start address on the I/O mapping page.</source>
        <translation>请在配置页面输入其他起始地址。</translation>
    </message>
    <message>
        <source>Variables are mapped for the %1, which is off.</source>
        <translation>已为关闭的%1映射变量。</translation>
    </message>
    <message>
        <source>the bytes that are mapped</source>
        <translation>已映射的字节</translation>
    </message>
    <message>
        <source>Nothing, unless the role should be on.</source>
        <translation>无需处理，除非该角色应当打开。</translation>
    </message>
    <message>
        <source>The %1 is on, but nothing is mapped for it in the mode that runs.</source>
        <translation>%1已打开，但在当前运行的模式下没有为其映射任何内容。</translation>
    </message>
    <message>
        <source>the mode</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>Enter quantities on the I/O mapping page, or switch the role off.</source>
        <translation>请在配置页面输入数量，或关闭该角色。</translation>
    </message>
    <message>
        <source>The byte order of the %1 is another one in its free variant: it changes when FreeBus is switched on.</source>
        <translation>%1的字节序在自由版本中不同：打开FreeBus时会改变。</translation>
    </message>
    <message>
        <source>the byte order in both files</source>
        <translation>两个文件中的字节序</translation>
    </message>
    <message>
        <source>Save the page of the role once more: it writes all variants.</source>
        <translation>请重新保存该角色的页面：会写入所有版本。</translation>
    </message>
    <message>
        <source>The byte order of the %1 is another one in its fixed variant: it changes when FreeBus is switched off.</source>
        <translation>%1的字节序在固定版本中不同：关闭FreeBus时会改变。</translation>
    </message>
    <message>
        <source>The byte order &quot;%2&quot; of the %1 is not one of the four that the driver knows.</source>
        <translation>%1的字节序“%2”不是驱动程序所知的四种之一。</translation>
    </message>
    <message>
        <source>the byte order</source>
        <translation>字节序</translation>
    </message>
    <message>
        <source>Choose the byte order on the page of the role, and save.</source>
        <translation>请在该角色的页面选择字节序并保存。</translation>
    </message>
    <message>
        <source>The connection of the %1 is watched, but the role is off: its loss will be reported.</source>
        <translation>正在监视%1的连接，但该角色已关闭：将报告其断开。</translation>
    </message>
    <message>
        <source>the watch and the role</source>
        <translation>监视和角色</translation>
    </message>
    <message>
        <source>Switch the watch off on the heartbeat page, or the role on.</source>
        <translation>请在心跳检测页面关闭监视，或打开该角色。</translation>
    </message>
    <message>
        <source>The connection of the %1 is watched with the time 0: any moment without a link is a loss.</source>
        <translation>%1的连接以时间0监视：任何瞬间断线都算断开。</translation>
    </message>
    <message>
        <source>the time-out</source>
        <translation>超时</translation>
    </message>
    <message>
        <source>Enter a time-out on the heartbeat page.</source>
        <translation>请在心跳检测页面输入超时。</translation>
    </message>
    <message>
        <source>The watch of the %1 ends after %2 s, sooner than a scan of its devices takes (%3 s).</source>
        <translation>%1的监视在%2秒后结束，短于设备的扫描时间（%3秒）。</translation>
    </message>
    <message>
        <source>the time-out and the scan time</source>
        <translation>超时和扫描时间</translation>
    </message>
    <message>
        <source>Enter a longer time-out on the heartbeat page.</source>
        <translation>请在心跳检测页面输入更长的超时。</translation>
    </message>
    <message>
        <source>The watch of the %1 ends after %2 s, sooner than its own time-out (%3 s): a slow answer is reported as a loss.</source>
        <translation>%1的监视在%2秒后结束，短于其自身的超时（%3秒）：较慢的应答会被报告为断开。</translation>
    </message>
    <message>
        <source>the two time-outs</source>
        <translation>两个超时</translation>
    </message>
    <message>
        <source>Enter a longer time-out on the heartbeat page, or a shorter one on the page of the role.</source>
        <translation>请在心跳检测页面输入更长的超时，或在该角色的页面输入更短的超时。</translation>
    </message>
    <message>
        <source>The connection of the %1 is not watched: its loss is not reported.</source>
        <translation>未监视%1的连接：不会报告其断开。</translation>
    </message>
    <message>
        <source>the watch</source>
        <translation>监视</translation>
    </message>
    <message>
        <source>Switch the watch on on the heartbeat page where a loss must stop the robot.</source>
        <translation>若断开时必须停止机器人，请在心跳检测页面打开监视。</translation>
    </message>
    <message>
        <source>The time-out of the watch of the %1 is no time.</source>
        <translation>%1的监视超时不是时间。</translation>
    </message>
    <message>
        <source>%1 of the %2 is %3, outside %4 to %5.</source>
        <translation>%2的%1为%3，超出%4至%5的范围。</translation>
    </message>
    <message>
        <source>the value</source>
        <translation>数值</translation>
    </message>
    <message>
        <source>Enter a value in the range on the page of the role.</source>
        <translation>请在该角色的页面输入范围内的值。</translation>
    </message>
    <message>
        <source>%1 of the %2 is &quot;%3&quot;, which is no number.</source>
        <translation>%2的%1为“%3”，不是数字。</translation>
    </message>
    <message>
        <source>Enter a number on the page of the role.</source>
        <translation>请在该角色的页面输入数字。</translation>
    </message>
    <message>
        <source>The %1 is to serve %2 slaves; 0 to 9 are possible.</source>
        <translation>%1要服务%2个从站；可为0至9个。</translation>
    </message>
    <message>
        <source>the slave count</source>
        <translation>从站数量</translation>
    </message>
    <message>
        <source>Enter the number of slaves on the page of the role.</source>
        <translation>请在该角色的页面输入从站数量。</translation>
    </message>
    <message>
        <source>The slave %2 of the %1 is both fixed and dynamic.</source>
        <translation>%1的从站%2同时为固定和动态。</translation>
    </message>
    <message>
        <source>the two flags</source>
        <translation>两个标志</translation>
    </message>
    <message>
        <source>Clear one of the two check boxes on the page of the role.</source>
        <translation>请在该角色的页面取消其中一个勾选。</translation>
    </message>
    <message>
        <source>The slave %2 of the %1 is marked, but only %3 are served.</source>
        <translation>%1的从站%2已勾选，但只服务%3个。</translation>
    </message>
    <message>
        <source>the flag and the slave count</source>
        <translation>标志和从站数量</translation>
    </message>
    <message>
        <source>Enter a higher number of slaves on the page of the role, or clear the mark.</source>
        <translation>请在该角色的页面增大从站数量，或取消勾选。</translation>
    </message>
    <message>
        <source>The link of the %1 is down, and its settings are consistent: the cable or the partner.</source>
        <translation>%1的连接已断开，而其设置一致：是电缆或对方的问题。</translation>
    </message>
    <message>
        <source>the link</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Look at the link light of the connector: dark, it is the cable or the partner&apos;s power; lit, it is the partner&apos;s configuration.</source>
        <translation>请看接口的连接指示灯：不亮是电缆或对方电源的问题，亮是对方配置的问题。</translation>
    </message>
    <message>
        <source>The %1 needs a fieldbus module in the slave slot, and none is found.</source>
        <translation>%1需要从站插槽中的现场总线模块，但未找到。</translation>
    </message>
    <message>
        <source>the module&apos;s code</source>
        <translation>模块代码</translation>
    </message>
    <message>
        <source>Switch the controller off and check that the module is in its slot.</source>
        <translation>请关闭控制器，检查模块是否在插槽中。</translation>
    </message>
    <message>
        <source>The fieldbus module in the slave slot is not one for the %1.</source>
        <translation>从站插槽中的现场总线模块不适用于%1。</translation>
    </message>
    <message>
        <source>the module&apos;s code and the one that is needed</source>
        <translation>模块代码和所需代码</translation>
    </message>
    <message>
        <source>Fit the right module, or switch the role off.</source>
        <translation>请安装正确的模块，或关闭该角色。</translation>
    </message>
    <message>
        <source>The partner of the %1 refuses or answers with errors.</source>
        <translation>%1的对方拒绝或以错误应答。</translation>
    </message>
    <message>
        <source>the link and the error</source>
        <translation>连接和错误</translation>
    </message>
    <message>
        <source>Compare address, port and unit or node with the partner&apos;s settings.</source>
        <translation>请将地址、端口、单元号或节点与对方的设置核对。</translation>
    </message>
    <message>
        <source>No partner is connected to the %1.</source>
        <translation>没有对方连接到%1。</translation>
    </message>
    <message>
        <source>the connection</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Start the partner&apos;s program, and check that it connects to the robot&apos;s address and port.</source>
        <translation>请启动对方的程序，并检查其是否连接到机器人的地址和端口。</translation>
    </message>
    <message>
        <source>The %1 is on, but its server does not run.</source>
        <translation>%1已打开，但其服务器未运行。</translation>
    </message>
    <message>
        <source>the server&apos;s state</source>
        <translation>服务器状态</translation>
    </message>
    <message>
        <source>Press Start Monitor on its page; when it does not start, its port is taken.</source>
        <translation>请在其页面按“开始监听”；若不启动，则其端口已被占用。</translation>
    </message>
    <message>
        <source>The device %1 (MAC ID %2) does not answer on the network.</source>
        <translation>设备%1（MAC ID %2）在网络上没有应答。</translation>
    </message>
    <message>
        <source>state and code of the device</source>
        <translation>设备的状态和代码</translation>
    </message>
    <message>
        <source>Check the device&apos;s power, its plug and the MAC ID that is set on it.</source>
        <translation>请检查设备的电源、插头以及其上设置的MAC ID。</translation>
    </message>
    <message>
        <source>The device %1 was not taken: another one has its MAC ID %2.</source>
        <translation>设备%1未被接纳：另一个设备的MAC ID为%2。</translation>
    </message>
    <message>
        <source>Give each device a MAC ID of its own, on the device and in the scan list.</source>
        <translation>请在设备和扫描列表中为每个设备设置各自的MAC ID。</translation>
    </message>
    <message>
        <source>The device %1 (MAC ID %2) is down with the code %3.</source>
        <translation>设备%1（MAC ID %2）因代码%3停止。</translation>
    </message>
    <message>
        <source>Look the code up in the manual of the DeviceNet master.</source>
        <translation>请在DeviceNet主站的手册中查找该代码。</translation>
    </message>
    <message>
        <source>The slave %2 of the %1 is not connected.</source>
        <translation>%1的从站%2未连接。</translation>
    </message>
    <message>
        <source>state of the slave</source>
        <translation>从站状态</translation>
    </message>
    <message>
        <source>Check the slave&apos;s power and cable, and its place in the master&apos;s configuration.</source>
        <translation>请检查从站的电源和电缆，以及其在主站配置中的位置。</translation>
    </message>
    <message>
        <source>The %1 was saved as %2, but runs as %3 until the robot is restarted.</source>
        <translation>%1已保存为%2，但在机器人重启之前以%3运行。</translation>
    </message>
    <message>
        <source>the file and what came up</source>
        <translation>文件和实际启动的内容</translation>
    </message>
    <message>
        <source>Restart the robot when production allows it.</source>
        <translation>请在生产允许时重启机器人。</translation>
    </message>
    <message>
        <source>The controller has not taken over what was announced.</source>
        <translation>控制器尚未接管所通知的内容。</translation>
    </message>
    <message>
        <source>the variable that announces it</source>
        <translation>用于通知的变量</translation>
    </message>
    <message>
        <source>Wait a moment; when it stays, restart the robot and save again.</source>
        <translation>请稍候；若仍如此，请重启机器人并重新保存。</translation>
    </message>
    <message>
        <source>The controller has rejected the I/O mapping.</source>
        <translation>控制器拒绝了配置。</translation>
    </message>
    <message>
        <source>the controller&apos;s answer</source>
        <translation>控制器的应答</translation>
    </message>
    <message>
        <source>Look for findings about the mapping, correct it on the I/O mapping page, and save again.</source>
        <translation>请查找有关配置的问题，在配置页面更正并重新保存。</translation>
    </message>
    <message>
        <source>The controller has not taken the command to open or close the %1.</source>
        <translation>控制器未接受打开或关闭%1的命令。</translation>
    </message>
    <message>
        <source>the command</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Restart the robot and switch the role again.</source>
        <translation>请重启机器人并重新切换该角色。</translation>
    </message>
    <message>
        <source>The link of the %1 has been down for %2 s; the watch reports the loss after %3 s.</source>
        <translation>%1的连接已断开%2秒；监视将在%3秒后报告断开。</translation>
    </message>
    <message>
        <source>the link and the watch&apos;s time-out</source>
        <translation>连接和监视超时</translation>
    </message>
    <message>
        <source>Bring the link back, or stop the robot in order.</source>
        <translation>请恢复连接，或有序停止机器人。</translation>
    </message>
    <message>
        <source>The link of the %1 has been down for %2 s, and the watch has reported the loss after %3 s.</source>
        <translation>%1的连接已断开%2秒，监视已在%3秒后报告断开。</translation>
    </message>
    <message>
        <source>Bring the link back; then acknowledge the alarm.</source>
        <translation>请恢复连接，然后确认报警。</translation>
    </message>
    <message>
        <source>%1 is missing.</source>
        <translation>缺少%1。</translation>
    </message>
    <message>
        <source>the file&apos;s place on the controller</source>
        <translation>文件在控制器上的位置</translation>
    </message>
    <message>
        <source>Export again; when it is missing then too, restore the file from a backup.</source>
        <translation>请重新导出；若仍缺少，请从备份恢复该文件。</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1为空。</translation>
    </message>
    <message>
        <source>the file&apos;s size</source>
        <translation>文件大小</translation>
    </message>
    <message>
        <source>Restore the file from a backup: the controller cannot use it.</source>
        <translation>请从备份恢复该文件：控制器无法使用它。</translation>
    </message>
    <message>
        <source>%1 is no well-formed XML.</source>
        <translation>%1不是格式正确的XML。</translation>
    </message>
    <message>
        <source>the first place that cannot be read</source>
        <translation>第一个无法读取的位置</translation>
    </message>
    <message>
        <source>Restore the file from a backup, or correct the line that is named.</source>
        <translation>请从备份恢复该文件，或更正所指的行。</translation>
    </message>
    <message>
        <source>%1 is another file than its name says.</source>
        <translation>%1的内容与其名称不符。</translation>
    </message>
    <message>
        <source>the element that it begins with</source>
        <translation>其开头的元素</translation>
    </message>
    <message>
        <source>Find out what was copied to its place, and restore the right file.</source>
        <translation>请查明被复制到该处的内容，并恢复正确的文件。</translation>
    </message>
    <message>
        <source>%1 is only a part of a file.</source>
        <translation>%1只是文件的一部分。</translation>
    </message>
    <message>
        <source>what it lacks</source>
        <translation>所缺内容</translation>
    </message>
    <message>
        <source>Restore the file from a backup.</source>
        <translation>请从备份恢复该文件。</translation>
    </message>
    <message>
        <source>%1 is larger than any file of a controller.</source>
        <translation>%1大于控制器的任何文件。</translation>
    </message>
    <message>
        <source>%1 is no text in the encoding that the controller reads.</source>
        <translation>%1不是控制器所读编码的文本。</translation>
    </message>
    <message>
        <source>what is wrong with its bytes</source>
        <translation>其字节的错误之处</translation>
    </message>
    <message>
        <source>Restore the file from a backup, or save it as UTF-8.</source>
        <translation>请从备份恢复该文件，或将其保存为UTF-8。</translation>
    </message>
    <message>
        <source>%1 holds an element &lt;%2&gt; that is not known here.</source>
        <translation>%1含有此处未知的元素&lt;%2&gt;。</translation>
    </message>
    <message>
        <source>the element</source>
        <translation>元素</translation>
    </message>
    <message>
        <source>Nothing: it is kept as it is. Look for a misspelling when a setting has no effect.</source>
        <translation>无需处理：保持原样。若某项设置不起作用，请检查拼写。</translation>
    </message>
    <message>
        <source>The list of roles names &quot;%1&quot;, which is not known here.</source>
        <translation>角色列表中有此处未知的“%1”。</translation>
    </message>
    <message>
        <source>the role and whether it is on</source>
        <translation>角色及其是否打开</translation>
    </message>
    <message>
        <source>Nothing, unless it is a misspelling of a role.</source>
        <translation>无需处理，除非是角色名拼写错误。</translation>
    </message>
    <message>
        <source>The list of roles names &quot;%1&quot; more than once; only the first entry counts.</source>
        <translation>角色列表多次出现“%1”；只有第一项有效。</translation>
    </message>
    <message>
        <source>the role</source>
        <translation>角色</translation>
    </message>
    <message>
        <source>Remove the other entries from fieldbus.xml.</source>
        <translation>请从fieldbus.xml中删除其他项。</translation>
    </message>
    <message>
        <source>Two files disagree about whether the %1 is on.</source>
        <translation>两个文件对%1是否打开的说法不一致。</translation>
    </message>
    <message>
        <source>what each of them says</source>
        <translation>各自的内容</translation>
    </message>
    <message>
        <source>Save the bus switches once more and restart the robot.</source>
        <translation>请重新保存总线开关并重启机器人。</translation>
    </message>
    <message>
        <source>EtherNet/IP master, EtherCAT master and PROFINET master exclude each other, and more than one is on.</source>
        <translation>EtherNet/IP主站、EtherCAT主站和PROFINET主站互斥，但打开了多个。</translation>
    </message>
    <message>
        <source>the masters that are on</source>
        <translation>已打开的主站</translation>
    </message>
    <message>
        <source>Switch all of them off but one on the bus switch page.</source>
        <translation>请在总线设置页面只保留一个，关闭其余主站。</translation>
    </message>
    <message>
        <source>DeviceNet slave and DeviceNet master exclude each other, and both are on.</source>
        <translation>DeviceNet从站和DeviceNet主站互斥，但两者都已打开。</translation>
    </message>
    <message>
        <source>the two roles</source>
        <translation>两个角色</translation>
    </message>
    <message>
        <source>Switch one of them off on the bus switch page.</source>
        <translation>请在总线设置页面关闭其中之一。</translation>
    </message>
    <message>
        <source>The %1 is on without the bus free configuration, which it needs.</source>
        <translation>%1已打开，但其所需的总线自由配置未打开。</translation>
    </message>
    <message>
        <source>the role and FreeBus</source>
        <translation>角色和FreeBus</translation>
    </message>
    <message>
        <source>Switch FreeBus on, or the role off.</source>
        <translation>请打开FreeBus，或关闭该角色。</translation>
    </message>
    <message>
        <source>The %1 is on, but its device %2 is switched off.</source>
        <translation>%1已打开，但其设备%2已关闭。</translation>
    </message>
    <message>
        <source>the role and the device&apos;s line</source>
        <translation>角色和设备所在的行</translation>
    </message>
    <message>
        <source>Activate the device on the page of the role, and restart the robot.</source>
        <translation>请在该角色的页面激活设备，并重启机器人。</translation>
    </message>
    <message>
        <source>The device number %1 is in use under two names.</source>
        <translation>设备号%1以两个名称使用。</translation>
    </message>
    <message>
        <source>the lines that have it in use</source>
        <translation>使用它的行</translation>
    </message>
    <message>
        <source>Deactivate one of them on the page of its role.</source>
        <translation>请在其角色的页面停用其中之一。</translation>
    </message>
    <message>
        <source>The device %2 is in use, but the %1 is off.</source>
        <translation>设备%2正在使用，但%1已关闭。</translation>
    </message>
    <message>
        <source>the device&apos;s line and the role</source>
        <translation>设备所在的行和角色</translation>
    </message>
    <message>
        <source>The Modbus TCP slave is listed as off; the controller runs it all the same.</source>
        <translation>列表中Modbus TCP从站为关闭；控制器仍然运行它。</translation>
    </message>
    <message>
        <source>Nothing: the next save of the bus switches brings it back.</source>
        <translation>无需处理：下次保存总线开关时会恢复。</translation>
    </message>
    <message>
        <source>The master card is in use by more than one master: %1.</source>
        <translation>主站卡被多个主站使用：%1。</translation>
    </message>
    <message>
        <source>the lines of the devices</source>
        <translation>设备所在的行</translation>
    </message>
    <message>
        <source>Deactivate the device of the master that is not wanted on its page.</source>
        <translation>请在不需要的主站的页面停用其设备。</translation>
    </message>
    <message>
        <source>The %1 has the address %2, which is no network port&apos;s of the robot.</source>
        <translation>%1的地址%2不属于机器人的任何网口。</translation>
    </message>
    <message>
        <source>the address and those of the ports</source>
        <translation>该地址和各网口的地址</translation>
    </message>
    <message>
        <source>Choose the port again on the page of the role and save, or correct the port&apos;s address.</source>
        <translation>请在该角色的页面重新选择网口并保存，或更正网口的地址。</translation>
    </message>
    <message>
        <source>The %1 has another net mask than the port with its address.</source>
        <translation>%1的子网掩码与具有其地址的网口不同。</translation>
    </message>
    <message>
        <source>the two masks</source>
        <translation>两个掩码</translation>
    </message>
    <message>
        <source>Choose the port again on the page of the role and save.</source>
        <translation>请在该角色的页面重新选择网口并保存。</translation>
    </message>
    <message>
        <source>The ports %1 and %2 are in the same net: it is open which of them answers.</source>
        <translation>网口%1和%2在同一网段：由哪个应答不确定。</translation>
    </message>
    <message>
        <source>addresses and masks of the two</source>
        <translation>两者的地址和掩码</translation>
    </message>
    <message>
        <source>Give one of them an address in another net.</source>
        <translation>请将其中之一改为其他网段的地址。</translation>
    </message>
    <message>
        <source>The ports %1 and %2 have the same address.</source>
        <translation>网口%1和%2的地址相同。</translation>
    </message>
    <message>
        <source>the address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Give one of them another address.</source>
        <translation>请将其中之一改为其他地址。</translation>
    </message>
    <message>
        <source>The %1 connects to %2, which is the robot itself.</source>
        <translation>%1连接到%2，而那是机器人自己。</translation>
    </message>
    <message>
        <source>the partner&apos;s address and the ports&apos;</source>
        <translation>对方的地址和各网口的地址</translation>
    </message>
    <message>
        <source>Enter the partner&apos;s address on the page of the role.</source>
        <translation>请在该角色的页面输入对方的地址。</translation>
    </message>
    <message>
        <source>The %1 connects to %2, which never leaves the controller.</source>
        <translation>%1连接到%2，该地址不会离开控制器。</translation>
    </message>
    <message>
        <source>the partner&apos;s address</source>
        <translation>对方的地址</translation>
    </message>
    <message>
        <source>Nothing in a trial; in a plant enter the partner&apos;s address on the page of the role.</source>
        <translation>试验时无需处理；在现场请在该角色的页面输入对方的地址。</translation>
    </message>
    <message>
        <source>&quot;%2&quot; of the %1 is no IPv4 address.</source>
        <translation>%1的“%2”不是IPv4地址。</translation>
    </message>
    <message>
        <source>the text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Enter four numbers from 0 to 255 with points between them.</source>
        <translation>请输入四个0至255的数字，以点分隔。</translation>
    </message>
    <message>
        <source>The %1 connects to %2, which is in no net of the robot&apos;s ports.</source>
        <translation>%1连接到%2，该地址不在机器人任何网口的网段内。</translation>
    </message>
    <message>
        <source>the partner&apos;s address and the ports&apos; nets</source>
        <translation>对方的地址和各网口的网段</translation>
    </message>
    <message>
        <source>Check the address, or give a port one in the partner&apos;s net, unless a router is between them.</source>
        <translation>请检查该地址；若中间没有路由器，请给某个网口设置对方网段的地址。</translation>
    </message>
    <message>
        <source>&quot;%2&quot; is no net mask (%1).</source>
        <translation>“%2”不是子网掩码（%1）。</translation>
    </message>
    <message>
        <source>Enter a mask such as 255.255.255.0.</source>
        <translation>请输入如255.255.255.0的掩码。</translation>
    </message>
    <message>
        <source>The %1 listens on the port %2, which %3 of the controller has taken.</source>
        <translation>%1监听端口%2，而它已被控制器的%3占用。</translation>
    </message>
    <message>
        <source>the port</source>
        <translation>端口</translation>
    </message>
    <message>
        <source>Choose another port on the page of the role, 8008 for example.</source>
        <translation>请在该角色的页面选择其他端口，例如8008。</translation>
    </message>
    <message>
        <source>The %1 listens on the port %2, which %3 uses as well.</source>
        <translation>%1监听端口%2，而%3也在使用它。</translation>
    </message>
    <message>
        <source>the port in both files</source>
        <translation>两个文件中的端口</translation>
    </message>
    <message>
        <source>Choose another port for one of the two.</source>
        <translation>请为其中之一选择其他端口。</translation>
    </message>
    <message>
        <source>&quot;%2&quot; of the %1 is no TCP port.</source>
        <translation>%1的“%2”不是TCP端口。</translation>
    </message>
    <message>
        <source>Enter a number from 1 to 65535 on the page of the role.</source>
        <translation>请在该角色的页面输入1至65535的数字。</translation>
    </message>
    <message>
        <source>The %1 uses the network port %2, which has no address.</source>
        <translation>%1使用的网口%2没有地址。</translation>
    </message>
    <message>
        <source>Give the port an address, or choose the other one on the page of the role.</source>
        <translation>请给该网口设置地址，或在该角色的页面选择另一个。</translation>
    </message>
    <message>
        <source>The FINS node %1 is the server&apos;s: nodes are the last number of the address.</source>
        <translation>FINS节点%1是服务器的：节点为地址的最后一个数字。</translation>
    </message>
    <message>
        <source>the node and the server&apos;s address</source>
        <translation>节点和服务器地址</translation>
    </message>
    <message>
        <source>Enter the last number of the robot&apos;s own address as client node.</source>
        <translation>请将机器人自身地址的最后一个数字作为客户端节点输入。</translation>
    </message>
    <message>
        <source>The FINS node %1 is outside 1 to 254.</source>
        <translation>FINS节点%1超出1至254的范围。</translation>
    </message>
    <message>
        <source>the node</source>
        <translation>节点</translation>
    </message>
    <message>
        <source>The FINS node %1 is not the last number of the address of %2.</source>
        <translation>FINS节点%1不是%2地址的最后一个数字。</translation>
    </message>
    <message>
        <source>the node and the port&apos;s address</source>
        <translation>节点和网口地址</translation>
    </message>
    <message>
        <source>Nothing, unless the server assigns nodes by address.</source>
        <translation>无需处理，除非服务器按地址分配节点。</translation>
    </message>
    <message>
        <source>The DM address %1 is outside 0 to 32767.</source>
        <translation>DM地址%1超出0至32767的范围。</translation>
    </message>
    <message>
        <source>Enter an address that the server has.</source>
        <translation>请输入服务器具有的地址。</translation>
    </message>
    <message>
        <source>The FINS client reads and writes at the same DM address, %1.</source>
        <translation>FINS客户端在同一DM地址%1读写。</translation>
    </message>
    <message>
        <source>the two addresses</source>
        <translation>两个地址</translation>
    </message>
    <message>
        <source>Enter another address for one direction: the robot reads what it wrote.</source>
        <translation>请为一个方向输入其他地址：机器人读到的是自己写入的内容。</translation>
    </message>
    <message>
        <source>The settings of the %1 were saved, but run after the next restart only.</source>
        <translation>%1的设置已保存，但要到下次重启后才生效。</translation>
    </message>
    <message>
        <source>what was changed, as saved and as it came up</source>
        <translation>更改的内容，保存时和启动时</translation>
    </message>
    <message>
        <source>The controller has refused the bus switches that were saved.</source>
        <translation>控制器拒绝了所保存的总线开关。</translation>
    </message>
    <message>
        <source>Check on the bus switch page which roles are on, and save once more.</source>
        <translation>请在总线设置页面检查哪些角色已打开，并重新保存。</translation>
    </message>
</context>
<context>
    <name>FindingsPage</name>
    <message>
        <source>Findings</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>代码</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>角色</translation>
    </message>
    <message>
        <source>Cause and what to do</source>
        <translation>原因和措施</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>未发现问题。</translation>
    </message>
    <message numerus="yes">
        <source>%n finding(s), the worst first</source>
        <translation>
            <numerusform>%n个问题，最严重的在前</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>%1 s</source>
        <translation>%1秒</translation>
    </message>
    <message>
        <source>%1 after %2</source>
        <translation>%1，%2后</translation>
    </message>
    <message>
        <source>The pendant was started</source>
        <translation>示教器已启动</translation>
    </message>
    <message>
        <source>The controller does not answer: it restarts, or its cable is out</source>
        <translation>控制器无应答：正在重启，或电缆已断开</translation>
    </message>
    <message>
        <source>The controller is back</source>
        <translation>控制器已恢复</translation>
    </message>
    <message>
        <source>Link lost</source>
        <translation>连接断开</translation>
    </message>
    <message>
        <source>Link back</source>
        <translation>连接恢复</translation>
    </message>
    <message>
        <source>The controller refused %1</source>
        <translation>控制器拒绝了%1</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... 以及另外%1个</translation>
    </message>
    <message>
        <source>%1 was sent</source>
        <translation>%1已发送</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>角色</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>事件</translation>
    </message>
    <message>
        <source>All roles</source>
        <translation>所有角色</translation>
    </message>
    <message>
        <source>No loss of the link that has ended.</source>
        <translation>没有已结束的连接断开。</translation>
    </message>
    <message>
        <source>Longest loss: %1.</source>
        <translation>最长断开：%1。</translation>
    </message>
    <message>
        <source>The watch trips after %1 s.</source>
        <translation>监视在%1秒后触发。</translation>
    </message>
    <message>
        <source>The link is not watched.</source>
        <translation>未监视该连接。</translation>
    </message>
</context>
<context>
    <name>OverviewPage</name>
    <message>
        <source>State of the roles</source>
        <translation>角色状态</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>角色</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Since</source>
        <translation>自</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>What runs</source>
        <translation>运行内容</translation>
    </message>
    <message>
        <source>Saved, runs after the next restart: %1</source>
        <translation>已保存，下次重启后运行：%1</translation>
    </message>
    <message>
        <source>up</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>down</source>
        <translation>断开</translation>
    </message>
    <message>
        <source>Switched
on</source>
        <translation>已打开</translation>
    </message>
    <message>
        <source>Runs
now</source>
        <translation>正在
运行</translation>
    </message>
</context>
<context>
    <name>RolePage</name>
    <message>
        <source>State and settings of the role</source>
        <translation>角色的状态和设置</translation>
    </message>
    <message>
        <source>What</source>
        <translation>项目</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>up</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>down</source>
        <translation>断开</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>%1 since %2</source>
        <translation>%1，自%2</translation>
    </message>
    <message>
        <source>Switched on</source>
        <translation>已打开</translation>
    </message>
    <message>
        <source>Runs now</source>
        <translation>正在运行</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Saved, runs after the next restart</source>
        <translation>已保存，下次重启后运行</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>措施</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>Device %1, MAC ID %2</source>
        <translation>设备%1，MAC ID %2</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>已连接</translation>
    </message>
    <message>
        <source>not connected: %1 (code %2)</source>
        <translation>未连接：%1（代码%2）</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>the coupling failed</source>
        <translation>耦合失败</translation>
    </message>
    <message>
        <source>the decoupling failed</source>
        <translation>解耦失败</translation>
    </message>
    <message>
        <source>Slave %1, dynamic</source>
        <translation>从站%1，动态</translation>
    </message>
    <message>
        <source>Slave %1, fixed</source>
        <translation>从站%1，固定</translation>
    </message>
    <message>
        <source>Slave %1</source>
        <translation>从站%1</translation>
    </message>
    <message>
        <source>Slaves</source>
        <translation>从站</translation>
    </message>
    <message>
        <source>Settings: %1 (%2)</source>
        <translation>设置：%1（%2）</translation>
    </message>
    <message>
        <source>%1 goes out as %2</source>
        <translation>%1以%2发送</translation>
    </message>
    <message>
        <source>could not be fetched the last time: what is shown of it is older</source>
        <translation>上次未能获取：显示的是较旧的内容</translation>
    </message>
    <message>
        <source>could not be fetched</source>
        <translation>未能获取</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>missing</source>
        <translation>缺少</translation>
    </message>
    <message>
        <source>there</source>
        <translation>存在</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>损坏</translation>
    </message>
    <message>
        <source>not set</source>
        <translation>未设置</translation>
    </message>
    <message>
        <source>addresses move</source>
        <translation>地址移动</translation>
    </message>
    <message>
        <source>on</source>
        <translation>开</translation>
    </message>
    <message>
        <source>off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>port</source>
        <translation>端口</translation>
    </message>
    <message>
        <source>mode</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>protocol</source>
        <translation>协议</translation>
    </message>
    <message>
        <source>interval</source>
        <translation>间隔</translation>
    </message>
    <message>
        <source>network port</source>
        <translation>网口</translation>
    </message>
    <message>
        <source>server&apos;s IP address</source>
        <translation>服务器IP地址</translation>
    </message>
    <message>
        <source>server&apos;s port</source>
        <translation>服务器端口</translation>
    </message>
    <message>
        <source>node</source>
        <translation>节点</translation>
    </message>
    <message>
        <source>connects by itself</source>
        <translation>自动连接</translation>
    </message>
    <message>
        <source>first DM word read</source>
        <translation>首个读取的DM字</translation>
    </message>
    <message>
        <source>first DM word written</source>
        <translation>首个写入的DM字</translation>
    </message>
    <message>
        <source>network port %1</source>
        <translation>网口%1</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP地址</translation>
    </message>
    <message>
        <source>network mask</source>
        <translation>子网掩码</translation>
    </message>
    <message>
        <source>free</source>
        <translation>自由</translation>
    </message>
    <message>
        <source>fixed</source>
        <translation>固定</translation>
    </message>
    <message>
        <source>read only</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>write only</source>
        <translation>只写</translation>
    </message>
    <message>
        <source>read and write</source>
        <translation>读写</translation>
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
        <source>Bool addresses</source>
        <translation>Bool地址</translation>
    </message>
    <message>
        <source>Int addresses</source>
        <translation>Int地址</translation>
    </message>
    <message>
        <source>Float addresses</source>
        <translation>Float地址</translation>
    </message>
    <message>
        <source>system Bool</source>
        <translation>系统Bool</translation>
    </message>
    <message>
        <source>system Int</source>
        <translation>系统Int</translation>
    </message>
    <message>
        <source>system Float</source>
        <translation>系统Float</translation>
    </message>
    <message>
        <source>system Bool addresses</source>
        <translation>系统Bool地址</translation>
    </message>
    <message>
        <source>system Int addresses</source>
        <translation>系统Int地址</translation>
    </message>
    <message>
        <source>system Float addresses</source>
        <translation>系统Float地址</translation>
    </message>
    <message>
        <source>block</source>
        <translation>数据块</translation>
    </message>
    <message>
        <source>mapping %1, %2, %3</source>
        <translation>映射%1，%2，%3</translation>
    </message>
    <message>
        <source>slave&apos;s IP address</source>
        <translation>从站IP地址</translation>
    </message>
    <message>
        <source>slave&apos;s port</source>
        <translation>从站端口</translation>
    </message>
    <message>
        <source>slave&apos;s unit</source>
        <translation>从站单元号</translation>
    </message>
    <message>
        <source>time-out</source>
        <translation>超时</translation>
    </message>
    <message>
        <source>byte order read</source>
        <translation>读取字节序</translation>
    </message>
    <message>
        <source>byte order written</source>
        <translation>写入字节序</translation>
    </message>
    <message>
        <source>keep-alive time</source>
        <translation>保活时间</translation>
    </message>
    <message>
        <source>slaves</source>
        <translation>从站</translation>
    </message>
    <message>
        <source>disable time-out</source>
        <translation>禁用超时</translation>
    </message>
    <message>
        <source>enable time-out</source>
        <translation>使能超时</translation>
    </message>
    <message>
        <source>MAC ID</source>
        <translation>MAC ID</translation>
    </message>
    <message>
        <source>baud rate</source>
        <translation>波特率</translation>
    </message>
    <message>
        <source>byte order</source>
        <translation>字节序</translation>
    </message>
    <message>
        <source>time between scans</source>
        <translation>扫描间隔</translation>
    </message>
    <message>
        <source>devices</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>input bytes</source>
        <translation>输入字节</translation>
    </message>
    <message>
        <source>output bytes</source>
        <translation>输出字节</translation>
    </message>
    <message>
        <source>vendor</source>
        <translation>厂商</translation>
    </message>
    <message>
        <source>product code</source>
        <translation>产品代码</translation>
    </message>
    <message>
        <source>revision</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>configuration flags</source>
        <translation>配置标志</translation>
    </message>
    <message>
        <source>status register</source>
        <translation>状态寄存器</translation>
    </message>
    <message>
        <source>first input register</source>
        <translation>首个输入寄存器</translation>
    </message>
    <message>
        <source>first output register</source>
        <translation>首个输出寄存器</translation>
    </message>
    <message>
        <source>fixed and dynamic</source>
        <translation>固定和动态</translation>
    </message>
    <message>
        <source>dynamic</source>
        <translation>动态</translation>
    </message>
    <message>
        <source>slave %1</source>
        <translation>从站%1</translation>
    </message>
    <message>
        <source>%1, device %2</source>
        <translation>%1，设备%2</translation>
    </message>
    <message>
        <source>switch</source>
        <translation>开关</translation>
    </message>
    <message>
        <source>switch that runs</source>
        <translation>运行中的开关</translation>
    </message>
    <message>
        <source>heartbeat</source>
        <translation>心跳检测</translation>
    </message>
    <message>
        <source>heartbeat time-out</source>
        <translation>心跳超时</translation>
    </message>
    <message>
        <source>PROFIBUS address</source>
        <translation>PROFIBUS地址</translation>
    </message>
    <message>
        <source>alarm on a lost connection</source>
        <translation>断开报警</translation>
    </message>
    <message>
        <source>devices of the %1</source>
        <translation>%1的设备</translation>
    </message>
    <message>
        <source>slave module</source>
        <translation>从站模块</translation>
    </message>
    <message>
        <source>master bus</source>
        <translation>主站总线</translation>
    </message>
    <message>
        <source>in use</source>
        <translation>使用中</translation>
    </message>
    <message>
        <source>not in use</source>
        <translation>未使用</translation>
    </message>
    <message>
        <source>output bit %1</source>
        <translation>输出位%1</translation>
    </message>
    <message>
        <source>input bit %1</source>
        <translation>输入位%1</translation>
    </message>
</context>
<context>
    <name>StateText</name>
    <message>
        <source>good</source>
        <translation>良好</translation>
    </message>
    <message>
        <source>being checked</source>
        <translation>检查中</translation>
    </message>
    <message>
        <source>outside its settings</source>
        <translation>超出设定</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>故障</translation>
    </message>
    <message>
        <source>off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>no</source>
        <translation>否</translation>
    </message>
</context>
<context>
    <name>StatusBox</name>
    <message>
        <source>The last import or export is still coming to its end.
Please try again in a moment.</source>
        <translation>上一次导入或导出尚未结束。
请稍后重试。</translation>
    </message>
</context>
<context>
    <name>StatusMain</name>
    <message>
        <source>Overview</source>
        <translation>概览</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>刷新</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>The controller does not answer: it restarts, or its cable is out. What is shown is what was known last.</source>
        <translation>控制器无应答：正在重启，或电缆已断开。显示的是最后已知的内容。</translation>
    </message>
    <message>
        <source>Waiting for the controller ...</source>
        <translation>正在等待控制器 ...</translation>
    </message>
    <message numerus="yes">
        <source>Reading the controller&apos;s files: %n to come</source>
        <translation>
            <numerusform>正在读取控制器的文件：还有%n个</numerusform>
        </translation>
    </message>
    <message>
        <source>Read from the controller %1</source>
        <translation>读取自控制器 %1</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>更改</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>支持</translation>
    </message>
</context>
<context>
    <name>Subjects</name>
    <message>
        <source>Heartbeat</source>
        <translation>心跳检测</translation>
    </message>
    <message>
        <source>ProfiSAFE</source>
        <translation>PROFIsafe</translation>
    </message>
    <message>
        <source>Controller: files and ports</source>
        <translation>控制器：文件和网口</translation>
    </message>
</context>
<context>
    <name>SupportPage</name>
    <message>
        <source>The support bundle %1 is on the USB drive.</source>
        <translation>支持包%1已写入U盘。</translation>
    </message>
    <message>
        <source>The controller does not give %1. Nothing was written to the drive.</source>
        <translation>控制器未给出%1。未向U盘写入任何内容。</translation>
    </message>
    <message>
        <source>%1 is larger than any configuration file. Nothing was written to the drive.</source>
        <translation>%1大于任何配置文件。未向U盘写入任何内容。</translation>
    </message>
    <message>
        <source>The USB drive was pulled out at %1. What is on it is not complete.</source>
        <translation>U盘在写入%1时被拔出。其上的内容不完整。</translation>
    </message>
    <message>
        <source>The USB drive does not take %1: it is full, write-protected or damaged.
What is on it is not complete.</source>
        <translation>U盘无法写入%1：已满、写保护或损坏。
其上的内容不完整。</translation>
    </message>
    <message>
        <source>The pendant&apos;s own disk does not take %1. What is on the drive is not complete.</source>
        <translation>示教器的磁盘无法写入%1。U盘上的内容不完整。</translation>
    </message>
    <message>
        <source>Write to the USB drive</source>
        <translation>写入U盘</translation>
    </message>
    <message>
        <source>Support bundle</source>
        <translation>支持包</translation>
    </message>
    <message>
        <source>Writes onto a USB drive: all configuration files of the controller, as an export does, and beside them a report with the findings, the history and checksums. Nothing is changed on the controller.</source>
        <translation>写入U盘：与导出相同的控制器全部配置文件，以及含问题、历史和校验和的报告。控制器上不作任何更改。</translation>
    </message>
    <message>
        <source>No device found!</source>
        <translation>未找到设备！</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
</context>
</TS>
