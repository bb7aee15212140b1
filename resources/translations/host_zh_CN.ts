<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>ApplicationInfo</name>
    <message>
        <source>%1 cannot be read.</source>
        <translation>无法读取 %1。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1 does not tell class, library and name of an application.</source>
        <translation>%1 未说明应用程序的类、库和名称。</translation>
    </message>
</context>
<context>
    <name>ApplicationSlot</name>
    <message>
        <source>The application could not be loaded: %1</source>
        <translation>无法加载应用程序：%1</translation>
    </message>
    <message>
        <source>%1 is not an application of this pendant: the function %2 is missing.</source>
        <translation>%1 不是本示教器的应用程序：缺少函数 %2。</translation>
    </message>
    <message>
        <source>The application did not start.</source>
        <translation>应用程序未能启动。</translation>
    </message>
</context>
<context>
    <name>ChoiceDialog</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>FolderLock</name>
    <message>
        <source>Another pendant works with the folder %1: process %2 on %3. Close it, or name other folders with --controller and --workdir.</source>
        <translation>另一个示教器正在使用文件夹 %1：%3 上的进程 %2。请将其关闭，或用 --controller 和 --workdir 指定其他文件夹。</translation>
    </message>
</context>
<context>
    <name>HomeScreen</name>
    <message>
        <source>Applications</source>
        <translation>应用程序</translation>
    </message>
    <message>
        <source>↻  Close and reopen the pendant</source>
        <translation>↻  关闭并重新打开示教器</translation>
    </message>
    <message>
        <source>%1
Controller is restarting</source>
        <translation>%1
控制器正在重启</translation>
    </message>
</context>
<context>
    <name>LanguageChange</name>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>The application is at work. Change the language when it is done.</source>
        <translation>应用程序正在工作。请在其完成后再切换语言。</translation>
    </message>
    <message>
        <source>What was entered and is not saved will be lost.
Change the language?</source>
        <translation>已输入但未保存的内容将丢失。
是否切换语言？</translation>
    </message>
</context>
<context>
    <name>LogInDialog</name>
    <message>
        <source>nobody</source>
        <translation>无</translation>
    </message>
    <message>
        <source>operator</source>
        <translation>操作员</translation>
    </message>
    <message>
        <source>shift</source>
        <translation>班组长</translation>
    </message>
    <message>
        <source>technician</source>
        <translation>技术员</translation>
    </message>
    <message>
        <source>engineer</source>
        <translation>工程师</translation>
    </message>
    <message>
        <source>service</source>
        <translation>服务</translation>
    </message>
    <message>
        <source>Log in: choose the user level</source>
        <translation>登录：选择用户等级</translation>
    </message>
</context>
<context>
    <name>MsgBox</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
</context>
<context>
    <name>NumericEntry</name>
    <message>
        <source>Nothing was entered.</source>
        <translation>未输入任何内容。</translation>
    </message>
    <message>
        <source>An address is four numbers from 0 to 255 with points between.</source>
        <translation>地址由四个 0 到 255 的数字组成，以点分隔。</translation>
    </message>
    <message>
        <source>This is not a number.</source>
        <translation>这不是数字。</translation>
    </message>
    <message>
        <source>Too small: at least %1.</source>
        <translation>过小：至少为 %1。</translation>
    </message>
    <message>
        <source>Too large: at most %1.</source>
        <translation>过大：至多为 %1。</translation>
    </message>
    <message>
        <source>0.0.0.0 to 255.255.255.255</source>
        <translation>0.0.0.0 至 255.255.255.255</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 至 %2</translation>
    </message>
</context>
<context>
    <name>NumericKeyboard</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Next field</source>
        <translation>下一项</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>%1, in steps of %2</source>
        <translation>%1，步长 %2</translation>
    </message>
</context>
<context>
    <name>PendantWindow</name>
    <message>
        <source>Pendant</source>
        <translation>示教器</translation>
    </message>
    <message>
        <source>↻
Restarting the pendant ...</source>
        <translation>↻
示教器正在重启 ...</translation>
    </message>
    <message>
        <source>%1 was closed: user level %2 may not use it. Log in with a higher level and open it again.</source>
        <translation>%1 已关闭：用户等级 %2 无权使用。请以更高等级登录后重新打开。</translation>
    </message>
</context>
<context>
    <name>ProgressBarWidget</name>
    <message>
        <source>Loading</source>
        <translation>正在加载</translation>
    </message>
</context>
<context>
    <name>Screen</name>
    <message>
        <source>There is no display. --tour needs none.</source>
        <translation>没有显示器。--tour 不需要显示器。</translation>
    </message>
    <message>
        <source>The display is Wayland&apos;s, and Qt&apos;s part for it is missing (package qtwayland5).</source>
        <translation>显示器属于 Wayland，而缺少 Qt 的相应组件（软件包 qtwayland5）。</translation>
    </message>
</context>
<context>
    <name>StatusBar</name>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Level %1</source>
        <translation>等级 %1</translation>
    </message>
</context>
<context>
    <name>StatusItem</name>
    <message>
        <source>running</source>
        <translation>运行中</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>已停止</translation>
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
        <source>up</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>restarting</source>
        <translation>重启中</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>drive in</source>
        <translation>已插入</translation>
    </message>
    <message>
        <source>no drive</source>
        <translation>无U盘</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>程序</translation>
    </message>
    <message>
        <source>Servo</source>
        <translation>伺服</translation>
    </message>
    <message>
        <source>Controller</source>
        <translation>控制器</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
</context>
<context>
    <name>WorkDirectory</name>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>无法创建文件夹 %1。</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written to.</source>
        <translation>无法写入文件夹 %1。</translation>
    </message>
    <message>
        <source>The folder %1 cannot be entered.</source>
        <translation>无法进入文件夹 %1。</translation>
    </message>
</context>
</TS>
