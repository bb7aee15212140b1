<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>BusSettingWidget</name>
    <message>
        <source>Bus setting</source>
        <translation>バス設定</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Bus switch settings</source>
        <translation>バススイッチ設定</translation>
    </message>
    <message>
        <source>Bus configuration file import and export</source>
        <translation>バス構成ファイルのインポートとエクスポート</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>インポート</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>エクスポート</translation>
    </message>
    <message>
        <source>EthernetIP master EtherCat master and Profinet master cannot be enabled at the same time!</source>
        <translation>EtherNet/IP マスタ、EtherCAT マスタ、PROFINET マスタを同時に有効にすることはできません。</translation>
    </message>
    <message>
        <source>DeviceNet slave and DeviceNet master cannot be enabled at the same time!</source>
        <translation>DeviceNet スレーブと DeviceNet マスタを同時に有効にすることはできません。</translation>
    </message>
    <message>
        <source>If ModbusTcp Master switch is ON,
 the bus free configuration switch needs to be ON!</source>
        <translation>Modbus TCP マスタをオンにする場合は、
 バスのフリー構成もオンにする必要があります。</translation>
    </message>
    <message>
        <source>If ModbusTcp Master or Profinet Slave switch is ON,
 the bus free configuration switch needs to be ON!</source>
        <translation>Modbus TCP マスタまたは PROFINET スレーブをオンにする場合は、
 バスのフリー構成もオンにする必要があります。</translation>
    </message>
    <message>
        <source>Failed to get file:%1</source>
        <translation>ファイルを取得できませんでした：%1</translation>
    </message>
    <message>
        <source>Failed to read file:%1</source>
        <translation>ファイルを読み取れませんでした：%1</translation>
    </message>
    <message>
        <source>Failed to write file:%1</source>
        <translation>ファイルを書き込めませんでした：%1</translation>
    </message>
    <message>
        <source>Failed to send file:%1</source>
        <translation>ファイルを送信できませんでした：%1</translation>
    </message>
    <message>
        <source>Save (%1)</source>
        <translation>保存（%1）</translation>
    </message>
    <message>
        <source>Please select ANYBUS in EtherCat slave after, Make the setting effective!</source>
        <translation>続いて EtherCAT スレーブで ANYBUS を選択し、設定を有効にしてください。</translation>
    </message>
    <message>
        <source>Please select PNM_DEVICE in Profinet master after, Make the setting effective!</source>
        <translation>続いて PROFINET マスタで PNM_DEVICE を選択し、設定を有効にしてください。</translation>
    </message>
    <message>
        <source>Please select EIM_DEVICE in EthernetIP master after, Make the setting effective!</source>
        <translation>続いて EtherNet/IP マスタで EIM_DEVICE を選択し、設定を有効にしてください。</translation>
    </message>
    <message>
        <source>The DeviceNet master station has been opened. Please close the master station before opening the slave station.</source>
        <translation>DeviceNet マスタが有効です。スレーブを有効にする前にマスタを無効にしてください。</translation>
    </message>
    <message>
        <source>The DeviceNet slave station has been opened. Please close the slave station before opening the master station.</source>
        <translation>DeviceNet スレーブが有効です。マスタを有効にする前にスレーブを無効にしてください。</translation>
    </message>
    <message>
        <source>Mes Switch</source>
        <translation>MES</translation>
    </message>
    <message>
        <source>EtherCatSlave Switch</source>
        <translation>EtherCAT スレーブ</translation>
    </message>
    <message>
        <source>EtherCatMaster Switch</source>
        <translation>EtherCAT マスタ</translation>
    </message>
    <message>
        <source>EthernetIPSlave Switch</source>
        <translation>EtherNet/IP スレーブ</translation>
    </message>
    <message>
        <source>EthernetIPMaster Switch</source>
        <translation>EtherNet/IP マスタ</translation>
    </message>
    <message>
        <source>ProfinetSlave Switch</source>
        <translation>PROFINET スレーブ</translation>
    </message>
    <message>
        <source>ProfinetMaster Switch</source>
        <translation>PROFINET マスタ</translation>
    </message>
    <message>
        <source>DeviceNetSlave Switch</source>
        <translation>DeviceNet スレーブ</translation>
    </message>
    <message>
        <source>DeviceNetMaster Switch</source>
        <translation>DeviceNet マスタ</translation>
    </message>
    <message>
        <source>ModbusTcpMaster Switch</source>
        <translation>Modbus TCP マスタ</translation>
    </message>
    <message>
        <source> FreeBus Switch</source>
        <translation>フリー構成</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>%1 ●</source>
        <translation>%1 ●</translation>
    </message>
    <message>
        <source>This operation will cause the robot to restart.
 Are you sure to save the configuration?</source>
        <translation>この操作によりロボットが再起動します。
 構成を保存しますか？</translation>
    </message>
    <message>
        <source>Before the save operation is completed,
 clicking on the current interface is invalid.</source>
        <translation>保存が完了するまで、
 この画面の操作は無効です。</translation>
    </message>
    <message>
        <source>The fieldbbus is not change,please reset!</source>
        <translation>フィールドバスは変更されていません。設定し直してください。</translation>
    </message>
    <message>
        <source>Failed to change bus:</source>
        <translation>バスを切り替えられませんでした：</translation>
    </message>
    <message>
        <source>Failed to write file.</source>
        <translation>ファイルを書き込めませんでした。</translation>
    </message>
    <message>
        <source>Successfully saved, the robot is about to restart and take effect.</source>
        <translation>保存しました。有効にするため、まもなくロボットが再起動します。</translation>
    </message>
    <message>
        <source>No device found!</source>
        <translation>デバイスが見つかりません。</translation>
    </message>
    <message>
        <source>Do you want to export the current robot
 bus related configuration file to the USB drive?</source>
        <translation>このロボットのバス関連構成ファイルを
 USB メモリにエクスポートしますか？</translation>
    </message>
    <message>
        <source>Exporting...</source>
        <translation>エクスポート中...</translation>
    </message>
    <message>
        <source>Export file success!</source>
        <translation>ファイルをエクスポートしました。</translation>
    </message>
    <message>
        <source>Export file failed!</source>
        <translation>ファイルをエクスポートできませんでした。</translation>
    </message>
</context>
<context>
    <name>ConfigWidget</name>
    <message>
        <source>Configuration</source>
        <translation>構成</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>User Bool</source>
        <translation>ユーザーBool</translation>
    </message>
    <message>
        <source>User Int</source>
        <translation>ユーザーInt</translation>
    </message>
    <message>
        <source>User Float</source>
        <translation>ユーザーFloat</translation>
    </message>
    <message>
        <source>System Bool</source>
        <translation>システムBool</translation>
    </message>
    <message>
        <source>System Int</source>
        <translation>システムInt</translation>
    </message>
    <message>
        <source>System Float</source>
        <translation>システムFloat</translation>
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
        <translation>予約</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>合計</translation>
    </message>
    <message>
        <source>Limit Range: %1 ~ %2, Please Fill In Again!</source>
        <translation>範囲は %1～%2 です。入力し直してください。</translation>
    </message>
    <message>
        <source>Bytes Limit Range: %1 ~ %2, Please Fill In Again!</source>
        <translation>バイト数の範囲は %1～%2 です。入力し直してください。</translation>
    </message>
    <message>
        <source>ModbusTCP:User Bool and User Int Bytes Limit Range: %2 ~ %3, Please Fill In Again!</source>
        <translation>Modbus TCP：ユーザー Bool とユーザー Int のバイト数の範囲は %2～%3 です。入力し直してください。</translation>
    </message>
    <message>
        <source>The total quantity cannot be zero!</source>
        <translation>合計数を 0 にすることはできません。</translation>
    </message>
    <message>
        <source>The current total input bytes are %1, 
exceeding the maximum bytes of 256. Please re-enter</source>
        <translation>入力の合計は %1 バイトで、
最大の 256 バイトを超えています。入力し直してください</translation>
    </message>
    <message>
        <source>The current total input bytes are %1, 
exceeding the maximum bytes of %2. Please re-enter</source>
        <translation>入力の合計は %1 バイトで、
最大の %2 バイトを超えています。入力し直してください</translation>
    </message>
    <message>
        <source>The current input end address is %1. The end address
 must be less than %2. Please re-enter!</source>
        <translation>終了アドレスが %1 になります。終了アドレスは
 %2 より小さくしてください。入力し直してください。</translation>
    </message>
    <message>
        <source>%1:User Bool and User Int Bytes Limit Range: %2 ~ %3, Please Fill In Again!</source>
        <translation>%1：ユーザー Bool とユーザー Int のバイト数の範囲は %2～%3 です。入力し直してください。</translation>
    </message>
    <message>
        <source>%1:The total number of bytes of all bool variables and int variables in user and system variables must be a multiple of %2, Please Fill In Again!</source>
        <translation>%1：ユーザー変数とシステム変数の Bool と Int の合計バイト数は %2 の倍数でなければなりません。入力し直してください。</translation>
    </message>
    <message>
        <source>%1:Bytes Limit Range: %2 ~ %3, Please Fill In Again!</source>
        <translation>%1：バイト数の範囲は %2～%3 です。入力し直してください。</translation>
    </message>
    <message>
        <source>%1:The Total Number Of Bytes Must Be A Multiple Of %2, Please Fill In Again!</source>
        <translation>%1：合計バイト数は %2 の倍数でなければなりません。入力し直してください。</translation>
    </message>
    <message>
        <source>The start address of ModbusTcp read-only input must be greater than the end address of write only!</source>
        <translation>Modbus TCP の読取専用の開始アドレスは、書込専用の終了アドレスより大きくなければなりません。</translation>
    </message>
    <message>
        <source>The current input read-only end address is %1, and the ModbusTcp read-only end address must be less than
 the readable and writable start address. Please re-enter</source>
        <translation>読取専用の終了アドレスが %1 になります。Modbus TCP の読取専用の終了アドレスは、
 読み書きの開始アドレスより小さくなければなりません。入力し直してください</translation>
    </message>
    <message>
        <source>The current input only write end address is %1, and ModbusTcp only write end address must be less than
 the read-only start address. Please re-enter</source>
        <translation>書込専用の終了アドレスが %1 になります。Modbus TCP の書込専用の終了アドレスは、
 読取専用の開始アドレスより小さくなければなりません。入力し直してください</translation>
    </message>
    <message>
        <source>The start address of the ModbusTcp readable and writable input must be greater than the end address of the read-only input!</source>
        <translation>Modbus TCP の読み書きの開始アドレスは、読取専用の終了アドレスより大きくなければなりません。</translation>
    </message>
    <message>
        <source>The current read-only start address is calculated by default from %1,
 which conflicts with writing only the address!</source>
        <translation>読取専用の開始アドレスは既定で %1 から計算され、
 書込専用のアドレスと競合します。</translation>
    </message>
    <message>
        <source>Conflicting with duplicate address writing only!</source>
        <translation>書込専用のアドレスと重複しています。</translation>
    </message>
    <message>
        <source>Currently, only the starting address is calculated by default from %1,
 which conflicts with a read-only address!</source>
        <translation>書込専用の開始アドレスは既定で %1 から計算され、
 読取専用のアドレスと競合します。</translation>
    </message>
    <message>
        <source>Conflicting with duplicate address reading only!</source>
        <translation>読取専用のアドレスと重複しています。</translation>
    </message>
    <message>
        <source>System Quantity Can Not Edit!</source>
        <translation>システム変数の数量は編集できません。</translation>
    </message>
    <message>
        <source>Cannot set start address for quantity 0!</source>
        <translation>数量が 0 の場合、開始アドレスは設定できません。</translation>
    </message>
    <message>
        <source>Tips:
    Type  Bool  Limit  Range: 0 ~ %1!
    Type  Int  Limit  Range: 0 ~ %2!                           
    Type  Float  Limit  Range: 0 ~ %3!
    Type  Bool,Please  Fill  In  A  Multiple  of  %4!
    All Bytes Limit Range: %5 ~ %6!</source>
        <translation>ヒント：
    Bool の範囲：0～%1
    Int の範囲：0～%2
    Float の範囲：0～%3
    Bool は %4 の倍数
    全バイト数の範囲：%5～%6</translation>
    </message>
    <message>
        <source>Tips:
    Type  Bool  Limit  Range: 0 ~ %1!
    Type  Int  Limit  Range: 0 ~ %2!                           
    Type  Float  Limit  Range: 0 ~ %3!
    Type  Bool,Please  Fill  In  A  Multiple  of  %4!                           
    All Bytes Limit Range: %5 ~ %6!
</source>
        <translation>ヒント：
    Bool の範囲：0～%1
    Int の範囲：0～%2
    Float の範囲：0～%3
    Bool は %4 の倍数
    全バイト数の範囲：%5～%6
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
        <translation>ヒント：
    Bool の範囲：0～%1
    Int の範囲：0～%2
    Float の範囲：0～%3
    Bool は %4 の倍数
    Bool と Int のバイト数の範囲：%5～%6
    全バイト数の範囲：%7～%8
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
        <translation>ヒント：
    Bool の範囲：0～%1
    Int の範囲：0～%2
    Float の範囲：0～%3
    Bool は %4 の倍数
    Bool と Int のバイト数の範囲：%5～%6
    全バイト数の範囲：%7～%8
    合計バイト数は 8 の倍数
    Bool と Int のバイト数は %9 の倍数</translation>
    </message>
    <message>
        <source>Tips:
    Type  Bool  Limit  Range: 0 ~ %1!
    Type  Int  Limit  Range: 0 ~ %2!        
    Type  Float  Limit  Range: 0 ~ %3!
    Type  Bool,Please  Fill  In  A  Multiple  of  %4!
    All Bytes Limit Range: %5 ~ %6!</source>
        <translation>ヒント：
    Bool の範囲：0～%1
    Int の範囲：0～%2
    Float の範囲：0～%3
    Bool は %4 の倍数
    全バイト数の範囲：%5～%6</translation>
    </message>
    <message>
        <source>Tips:
    The number of Ecat main stations cannot be modified
                         Type  Bool  Limit  Range: 0 ~ %1!
                         All Bytes Limit Range: %2 ~ %3!
</source>
        <translation>ヒント：
    EtherCAT マスタの数量は変更できません
    Bool の範囲：0～%1
    全バイト数の範囲：%2～%3
</translation>
    </message>
    <message>
        <source>Tips:
    The number of EipMaster main stations cannot be modified
                         Type  Bool  Limit  Range: 0 ~ %1!
                         All Bytes Limit Range: %2 ~ %3!
</source>
        <translation>ヒント：
    EtherNet/IP マスタの数量は変更できません
    Bool の範囲：0～%1
    全バイト数の範囲：%2～%3
</translation>
    </message>
    <message>
        <source>Tips:
    The number of PfnMaster main stations cannot be modified
                         Type  Bool  Limit  Range: 0 ~ %1!
                         All Bytes Limit Range: %2 ~ %3!
</source>
        <translation>ヒント：
    PROFINET マスタの数量は変更できません
    Bool の範囲：0～%1
    全バイト数の範囲：%2～%3
</translation>
    </message>
    <message>
        <source>Tips:
 Type Bool Limit Range: 0 ~ %1!
                         Type Bool,Please Fill In A Multiple of %2!
                        All Bytes Limit Range: %3 ~ %4!
</source>
        <translation>ヒント：
    Bool の範囲：0～%1
    Bool は %2 の倍数
    全バイト数の範囲：%3～%4
</translation>
    </message>
    <message>
        <source>Mtcp Slave</source>
        <translation>Mtcp スレーブ</translation>
    </message>
    <message>
        <source>Ecat Slave</source>
        <translation>Ecat スレーブ</translation>
    </message>
    <message>
        <source>Eip Slave</source>
        <translation>Eip スレーブ</translation>
    </message>
    <message>
        <source>Pfn Slave</source>
        <translation>Pfn スレーブ</translation>
    </message>
    <message>
        <source>Ecat Master</source>
        <translation>Ecat マスタ</translation>
    </message>
    <message>
        <source>Dn Slave </source>
        <translation>Dn スレーブ</translation>
    </message>
    <message>
        <source>Mtcp Master</source>
        <translation>Mtcp マスタ</translation>
    </message>
    <message>
        <source>Eip Master</source>
        <translation>Eip マスタ</translation>
    </message>
    <message>
        <source>Pfn Master</source>
        <translation>Pfn マスタ</translation>
    </message>
    <message>
        <source>Dn Master</source>
        <translation>Dn マスタ</translation>
    </message>
    <message>
        <source>Read Only</source>
        <translation>読取専用</translation>
    </message>
    <message>
        <source>Write Only</source>
        <translation>書込専用</translation>
    </message>
    <message>
        <source>Read and Write</source>
        <translation>読み書き</translation>
    </message>
    <message>
        <source>Data Type</source>
        <translation>データ型</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>数量</translation>
    </message>
    <message>
        <source>Byte</source>
        <translation>Byte</translation>
    </message>
    <message>
        <source>Start Address</source>
        <translation>開始アドレス</translation>
    </message>
    <message>
        <source>End Address</source>
        <translation>終了アドレス</translation>
    </message>
    <message>
        <source>Bus Variable</source>
        <translation>バス変数</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Are you sure to Save Configuration?</source>
        <translation>構成を保存しますか？</translation>
    </message>
    <message>
        <source>Please turn off the servo first!</source>
        <translation>先にサーボをオフにしてください。</translation>
    </message>
    <message>
        <source>Please wait....</source>
        <translation>お待ちください....</translation>
    </message>
    <message>
        <source>Failed to send %1 file to controller!</source>
        <translation>ファイル %1 をコントローラに送信できませんでした。</translation>
    </message>
    <message>
        <source>Save successfully, and send Configuration file to controller! Are you sure to restart robot to make it effect?</source>
        <translation>保存し、構成ファイルをコントローラに送信しました。有効にするためロボットを再起動しますか？</translation>
    </message>
    <message>
        <source>Bus configuration modification failed!</source>
        <translation>バス構成を変更できませんでした。</translation>
    </message>
    <message>
        <source>Please manually power off and restart the robot later!</source>
        <translation>後で手動でロボットの電源を切り、再起動してください。</translation>
    </message>
</context>
<context>
    <name>DeviceNetMasterSetting</name>
    <message>
        <source>DeviceNet Master Setting</source>
        <translation>DeviceNet マスタ設定</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
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
        <translation>MAC ID の重複は許可されていません。</translation>
    </message>
    <message>
        <source>The total number of bytes in the Input cannot exceed the number of bytes configured on the bus free configuration interface!</source>
        <translation>入力の合計バイト数は、バスのフリー構成で設定したバイト数を超えられません。</translation>
    </message>
    <message>
        <source>The total number of bytes in the Output cannot exceed the number of bytes configured on the bus free configuration interface!</source>
        <translation>出力の合計バイト数は、バスのフリー構成で設定したバイト数を超えられません。</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Device %1: %2</source>
        <translation>デバイス %1：%2</translation>
    </message>
    <message>
        <source>The table has not been completed. Please complete the settings before saving.</source>
        <translation>表の入力が完了していません。設定を完了してから保存してください。</translation>
    </message>
    <message>
        <source>Are you sure to save?</source>
        <translation>保存しますか？</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>Disconnected::%1</source>
        <translation>切断::%1</translation>
    </message>
</context>
<context>
    <name>DeviceNetSlaverSetting</name>
    <message>
        <source>DeviceNet Slave Setting</source>
        <translation>DeviceNet スレーブ設定</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>set up</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Baud rate</source>
        <translation>通信速度</translation>
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
        <translation>接続</translation>
    </message>
    <message>
        <source>Connect status</source>
        <translation>接続状態</translation>
    </message>
    <message>
        <source>MACID value must be even!</source>
        <translation>MAC ID は偶数でなければなりません。</translation>
    </message>
    <message>
        <source>Are you sure to save?</source>
        <translation>保存しますか？</translation>
    </message>
    <message>
        <source>Save failed!</source>
        <translation>保存できませんでした。</translation>
    </message>
</context>
<context>
    <name>DeviceTable</name>
    <message>
        <source>Index</source>
        <translation>番号</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>Function Name</source>
        <translation>機能名</translation>
    </message>
    <message>
        <source>Activate</source>
        <translation>有効</translation>
    </message>
</context>
<context>
    <name>EcatMasterSettingWidget</name>
    <message>
        <source>EtherCat Master Setting</source>
        <translation>EtherCAT マスタ設定</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
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
        <translation>EtherNet/IP マスタ設定</translation>
    </message>
    <message>
        <source>Failed to get eip_master.xml file.</source>
        <translation>ファイル eip_master.xml を取得できませんでした。</translation>
    </message>
    <message>
        <source>Failed to read eip_master.xml file.</source>
        <translation>ファイル eip_master.xml を読み取れませんでした。</translation>
    </message>
    <message>
        <source>Failed to write eip_master.xml file.</source>
        <translation>ファイル eip_master.xml を書き込めませんでした。</translation>
    </message>
    <message>
        <source>Failed to send eip_master.xml file.</source>
        <translation>ファイル eip_master.xml を送信できませんでした。</translation>
    </message>
</context>
<context>
    <name>EtherCatSettingWidget</name>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Endian</source>
        <translation>バイトオーダー</translation>
    </message>
    <message>
        <source>EtherCat Slave Setting</source>
        <translation>EtherCAT スレーブ設定</translation>
    </message>
    <message>
        <source>Are you sure to save?</source>
        <translation>保存しますか？</translation>
    </message>
    <message>
        <source>Failed to write file.</source>
        <translation>ファイルを書き込めませんでした。</translation>
    </message>
</context>
<context>
    <name>EtherNetSettingWidget</name>
    <message>
        <source>EthernetIP Slave Setting</source>
        <translation>EtherNet/IP スレーブ設定</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>The EthernetIP IP address does not match the controller netport. Please reselect.</source>
        <translation>EtherNet/IP の IP アドレスがコントローラのネットワークポートと一致しません。選択し直してください。</translation>
    </message>
    <message>
        <source>connect </source>
        <translation>接続</translation>
    </message>
    <message>
        <source>Connect status</source>
        <translation>接続状態</translation>
    </message>
    <message>
        <source>Communicate performance</source>
        <translation>通信性能</translation>
    </message>
    <message>
        <source>set up</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Local Port</source>
        <translation>ローカルポート</translation>
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
        <translation>アダプタなし</translation>
    </message>
    <message>
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message>
        <source>Netmask</source>
        <translation>ネットマスク</translation>
    </message>
    <message>
        <source>Endian</source>
        <translation>バイトオーダー</translation>
    </message>
    <message>
        <source>Are you sure to save?</source>
        <translation>保存しますか？</translation>
    </message>
</context>
<context>
    <name>FbMainWidget</name>
    <message>
        <source>Exit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>An import was neither finished nor undone: the controller may hold a mixture of files. Press Import on the page of the bus switches.</source>
        <translation>インポートが完了も取り消しもされていません。コントローラに新旧のファイルが混在している可能性があります。バス設定の画面で「インポート」を押してください。</translation>
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
        <translation>PROFINET スレーブ</translation>
    </message>
    <message>
        <source>EthCat</source>
        <translation>EtherCAT スレーブ</translation>
    </message>
    <message>
        <source>Eip</source>
        <translation>EtherNet/IP スレーブ</translation>
    </message>
    <message>
        <source>BusSetting</source>
        <translation>バス設定</translation>
    </message>
    <message>
        <source>Heartbeat</source>
        <translation>ハートビート</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>構成</translation>
    </message>
    <message>
        <source>Ecm</source>
        <translation>EtherCAT マスタ</translation>
    </message>
    <message>
        <source>Dns</source>
        <translation>DeviceNet スレーブ</translation>
    </message>
    <message>
        <source>Mbc</source>
        <translation>Modbus TCP マスタ</translation>
    </message>
    <message>
        <source>Eim</source>
        <translation>EtherNet/IP マスタ</translation>
    </message>
    <message>
        <source>Pnm</source>
        <translation>PROFINET マスタ</translation>
    </message>
    <message>
        <source>Dnm</source>
        <translation>DeviceNet マスタ</translation>
    </message>
    <message>
        <source>Pfss</source>
        <translation>PROFIsafe</translation>
    </message>
    <message>
        <source>Mtcp</source>
        <translation>Modbus TCP スレーブ</translation>
    </message>
    <message>
        <source>The bus configuration could not be read from the controller.</source>
        <translation>コントローラからバス構成を読み取れませんでした。</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>再試行</translation>
    </message>
</context>
<context>
    <name>FinsTcpSettingWidget</name>
    <message>
        <source>FinsTCP setting</source>
        <translation>FINS/TCP 設定</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Enable FinsTCP</source>
        <translation>FINS/TCP を有効にする</translation>
    </message>
    <message>
        <source>Connect State</source>
        <translation>接続状態</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Server IP</source>
        <translation>サーバー IP</translation>
    </message>
    <message>
        <source>Server Port</source>
        <translation>サーバーポート</translation>
    </message>
    <message>
        <source>Client Node</source>
        <translation>クライアントノード</translation>
    </message>
    <message>
        <source>Read Address</source>
        <translation>読取アドレス</translation>
    </message>
    <message>
        <source>Write Address</source>
        <translation>書込アドレス</translation>
    </message>
    <message>
        <source>Local Port</source>
        <translation>ローカルポート</translation>
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
        <translation>自動接続</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Are you sure to save?</source>
        <translation>保存しますか？</translation>
    </message>
    <message>
        <source>Save successfully.</source>
        <translation>保存しました。</translation>
    </message>
</context>
<context>
    <name>HeartbeatDetectionWidget</name>
    <message>
        <source>Heartbeat Detection</source>
        <translation>ハートビート監視</translation>
    </message>
    <message>
        <source>save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>switch</source>
        <translation>スイッチ</translation>
    </message>
    <message>
        <source>time</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>接続状態</translation>
    </message>
    <message>
        <source>ModbusTcp Slave</source>
        <translation>Modbus TCP スレーブ</translation>
    </message>
    <message>
        <source>EtherCat Slave</source>
        <translation>EtherCAT スレーブ</translation>
    </message>
    <message>
        <source>Profinet Slave</source>
        <translation>PROFINET スレーブ</translation>
    </message>
    <message>
        <source>EthernetIP Slave</source>
        <translation>EtherNet/IP スレーブ</translation>
    </message>
    <message>
        <source>EtherCat Master</source>
        <translation>EtherCAT マスタ</translation>
    </message>
    <message>
        <source>DeviceNet Slave</source>
        <translation>DeviceNet スレーブ</translation>
    </message>
    <message>
        <source>ModbusTcp Master</source>
        <translation>Modbus TCP マスタ</translation>
    </message>
    <message>
        <source>EthernetIP Master</source>
        <translation>EtherNet/IP マスタ</translation>
    </message>
    <message>
        <source>Profinet Master</source>
        <translation>PROFINET マスタ</translation>
    </message>
    <message>
        <source>DeviceNet Master</source>
        <translation>DeviceNet マスタ</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>%1, time</source>
        <translation>%1、時間</translation>
    </message>
    <message>
        <source>Are you sure to save the data ?</source>
        <translation>データを保存しますか？</translation>
    </message>
    <message>
        <source>Save successfully.</source>
        <translation>保存しました。</translation>
    </message>
</context>
<context>
    <name>ImportFolderDialog</name>
    <message>
        <source>Choose the bus configuration to import</source>
        <translation>インポートするバス構成の選択</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダ</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
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
        <translation>空です</translation>
    </message>
    <message>
        <source>is larger than any file of a controller</source>
        <translation>コントローラのどのファイルよりも大きいです</translation>
    </message>
    <message>
        <source>is no text</source>
        <translation>テキストではありません</translation>
    </message>
    <message>
        <source>is not in UTF-8</source>
        <translation>UTF-8 ではありません</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>%1 行目：%2</translation>
    </message>
    <message>
        <source>begins with &quot;%1&quot; instead of &quot;%2&quot;</source>
        <translation>「%2」ではなく「%1」で始まっています</translation>
    </message>
    <message>
        <source>has no &quot;%1&quot;</source>
        <translation>「%1」がありません</translation>
    </message>
    <message>
        <source>ends in the middle of a device</source>
        <translation>デバイスの途中で終わっています</translation>
    </message>
    <message>
        <source>holds more than any file of a controller</source>
        <translation>コントローラのどのファイルよりも内容が多いです</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>読み取れません</translation>
    </message>
    <message>
        <source>holds a quantity or an address that is no number in its range</source>
        <translation>数量またはアドレスが範囲内の数値ではありません</translation>
    </message>
    <message>
        <source>It holds no file of a bus configuration.</source>
        <translation>バス構成のファイルが含まれていません。</translation>
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
        <translation>インポート</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>different</source>
        <translation>相違</translation>
    </message>
    <message>
        <source>new</source>
        <translation>新規</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>same</source>
        <translation>同じ</translation>
    </message>
    <message>
        <source>missing: a link</source>
        <translation>なし：リンク</translation>
    </message>
    <message>
        <source>missing: too large</source>
        <translation>なし：過大</translation>
    </message>
    <message>
        <source>Import of %1</source>
        <translation>%1 のインポート</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>The controller holds these files already.</source>
        <translation>コントローラには既にこれらのファイルがあります。</translation>
    </message>
    <message>
        <source>Different and new files replace those of the controller; the others stay.</source>
        <translation>相違および新規のファイルがコントローラのファイルを置き換えます。他は残ります。</translation>
    </message>
    <message>
        <source>This is not a whole export: it brings %1 of %2 files.</source>
        <translation>完全なエクスポートではありません。%2 個中 %1 個のファイルです。</translation>
    </message>
    <message>
        <source>Bus switch</source>
        <translation>バススイッチ</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>現在</translation>
    </message>
    <message>
        <source>After</source>
        <translation>変更後</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>This configuration cannot be imported:</source>
        <translation>この構成はインポートできません：</translation>
    </message>
    <message>
        <source>The PROFINET slave cannot be on in this controller: it will be imported switched off.</source>
        <translation>このコントローラでは PROFINET スレーブをオンにできません。オフの状態でインポートします。</translation>
    </message>
</context>
<context>
    <name>MasterSettingsPanel</name>
    <message>
        <source>Slave Count</source>
        <translation>スレーブ数</translation>
    </message>
    <message>
        <source>DynAlmEnable</source>
        <translation>動的アラーム有効</translation>
    </message>
    <message>
        <source>Disable Timeout</source>
        <translation>無効化タイムアウト</translation>
    </message>
    <message>
        <source>Enable Timeout</source>
        <translation>有効化タイムアウト</translation>
    </message>
</context>
<context>
    <name>MasterSlaveList</name>
    <message>
        <source>Number</source>
        <translation>番号</translation>
    </message>
    <message>
        <source>Fixed  Status</source>
        <translation>固定</translation>
    </message>
    <message>
        <source> Dynamic Status</source>
        <translation>動的</translation>
    </message>
    <message>
        <source> Connected Status</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>Coupling Status</source>
        <translation>結合</translation>
    </message>
    <message>
        <source>Decoupling Status</source>
        <translation>切離し</translation>
    </message>
</context>
<context>
    <name>MasterTablePage</name>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
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
        <translation>MES 設定</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Start Monitor</source>
        <translation>監視開始</translation>
    </message>
    <message>
        <source>Local Port</source>
        <translation>ローカルポート</translation>
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
        <translation>ポート</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>モード</translation>
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
        <translation>プロトコル</translation>
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
        <translation>間隔</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>The set port conflicts with %1 default port.</source>
        <translation>設定したポートは %1 の既定ポートと競合します。</translation>
    </message>
    <message>
        <source>Are you sure to save?</source>
        <translation>保存しますか？</translation>
    </message>
    <message>
        <source>Save successfully.</source>
        <translation>保存しました。</translation>
    </message>
    <message>
        <source>Stop Monitor</source>
        <translation>監視停止</translation>
    </message>
</context>
<context>
    <name>MtcpMasterSetting</name>
    <message>
        <source>ModbusTcp Master setting</source>
        <translation>Modbus TCP マスタ設定</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>connect</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>Connection status</source>
        <translation>接続状態</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>automatic connection</source>
        <translation>自動接続</translation>
    </message>
    <message>
        <source>set up</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Read Endian</source>
        <translation>読取バイトオーダー</translation>
    </message>
    <message>
        <source>Write Endian</source>
        <translation>書込バイトオーダー</translation>
    </message>
    <message>
        <source>Connect timeout</source>
        <translation>接続タイムアウト</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Slave IP</source>
        <translation>スレーブ IP</translation>
    </message>
    <message>
        <source>Slave id</source>
        <translation>スレーブ ID</translation>
    </message>
    <message>
        <source>Slave port</source>
        <translation>スレーブポート</translation>
    </message>
    <message>
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>ポート</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Timeout</source>
        <translation>タイムアウト</translation>
    </message>
    <message>
        <source>Failed to get mtcp_master.xml file.</source>
        <translation>ファイル mtcp_master.xml を取得できませんでした。</translation>
    </message>
    <message>
        <source>Failed to read mtcp_master.xml file.</source>
        <translation>ファイル mtcp_master.xml を読み取れませんでした。</translation>
    </message>
    <message>
        <source>Failed to write mtcp_master.xml file.</source>
        <translation>ファイル mtcp_master.xml を書き込めませんでした。</translation>
    </message>
    <message>
        <source>Failed to send mtcp_master.xml file.</source>
        <translation>ファイル mtcp_master.xml を送信できませんでした。</translation>
    </message>
    <message>
        <source>Are you sure to save?</source>
        <translation>保存しますか？</translation>
    </message>
    <message>
        <source>%1 cannot be empty!</source>
        <translation>%1 を空にすることはできません。</translation>
    </message>
    <message>
        <source>Successfully saved.</source>
        <translation>保存しました。</translation>
    </message>
    <message>
        <source>IP address format is wrong!</source>
        <translation>IP アドレスの形式が正しくありません。</translation>
    </message>
    <message>
        <source>The port number is already occupied!</source>
        <translation>このポート番号は既に使用されています。</translation>
    </message>
</context>
<context>
    <name>MtcpSlaveSetting</name>
    <message>
        <source>ModbusTcp Slave Setting</source>
        <translation>Modbus TCP スレーブ設定</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>設定</translation>
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
        <translation>ファイルを取得できませんでした。</translation>
    </message>
    <message>
        <source>Loaded now. Look at the settings, then save.</source>
        <translation>読み込みました。設定を確認してから保存してください。</translation>
    </message>
    <message>
        <source>Are you sure to save?</source>
        <translation>保存しますか？</translation>
    </message>
    <message>
        <source>Please turn off the servo first!</source>
        <translation>先にサーボをオフにしてください。</translation>
    </message>
    <message>
        <source>Save successfully, Are you sure to restart robot to make it effect?</source>
        <translation>保存しました。有効にするためロボットを再起動しますか？</translation>
    </message>
    <message>
        <source>Please close and reopen the teaching pendant.</source>
        <translation>ティーチペンダントを閉じて再起動してください。</translation>
    </message>
    <message>
        <source>Please manually power off and restart the robot!</source>
        <translation>手動でロボットの電源を切り、再起動してください。</translation>
    </message>
    <message>
        <source>Failed to read file.</source>
        <translation>ファイルを読み取れませんでした。</translation>
    </message>
    <message>
        <source>Failed to write file.</source>
        <translation>ファイルを書き込めませんでした。</translation>
    </message>
    <message>
        <source>Failed to send file.</source>
        <translation>ファイルを送信できませんでした。</translation>
    </message>
    <message>
        <source>override.cfg was changed on the controller since it was read. It has been loaded again.</source>
        <translation>override.cfg は読み取り後にコントローラ側で変更されました。再読み込みしました。</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>再読み込み</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>保持</translation>
    </message>
    <message>
        <source>Changed on the controller since it was read</source>
        <translation>読み取り後にコントローラ側で変更</translation>
    </message>
    <message>
        <source>Changed on the controller since it was read. Reload?</source>
        <translation>読み取り後にコントローラ側で変更されました。再読み込みしますか？</translation>
    </message>
</context>
<context>
    <name>PageHead</name>
    <message>
        <source>Not read from the controller: these are not its settings</source>
        <translation>コントローラから未読取：これはコントローラの設定ではありません</translation>
    </message>
    <message>
        <source>Read from the controller %1</source>
        <translation>コントローラから読取 %1</translation>
    </message>
</context>
<context>
    <name>Pfb_PfnSettingWidget</name>
    <message>
        <source>Profinet Slave Setting</source>
        <translation>PROFINET スレーブ設定</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>connect</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>Connect status</source>
        <translation>接続状態</translation>
    </message>
    <message>
        <source>Communicate performance</source>
        <translation>通信性能</translation>
    </message>
    <message>
        <source>set up</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>Endian</source>
        <translation>バイトオーダー</translation>
    </message>
    <message>
        <source>Detects connected switch</source>
        <translation>接続検出スイッチ</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Are you sure to save?</source>
        <translation>保存しますか？</translation>
    </message>
</context>
<context>
    <name>PfnMasterSetting</name>
    <message>
        <source>Profinet Master Setting</source>
        <translation>PROFINET マスタ設定</translation>
    </message>
    <message>
        <source>Failed to get pfn_master.xml file.</source>
        <translation>ファイル pfn_master.xml を取得できませんでした。</translation>
    </message>
    <message>
        <source>Failed to read pfn_master.xml file.</source>
        <translation>ファイル pfn_master.xml を読み取れませんでした。</translation>
    </message>
    <message>
        <source>Failed to write pnm_master.xml file.</source>
        <translation>ファイル pnm_master.xml を書き込めませんでした。</translation>
    </message>
    <message>
        <source>Failed to send pnm_master.xml file.</source>
        <translation>ファイル pnm_master.xml を送信できませんでした。</translation>
    </message>
</context>
<context>
    <name>ProfiSAFESlaveWidget</name>
    <message>
        <source>ProfiSAFE Slave Setting</source>
        <translation>PROFIsafe スレーブ設定</translation>
    </message>
    <message>
        <source>Device status</source>
        <translation>デバイス状態</translation>
    </message>
    <message>
        <source>Error confirmation</source>
        <translation>エラー確認</translation>
    </message>
    <message>
        <source>Emg stop reset</source>
        <translation>非常停止リセット</translation>
    </message>
    <message>
        <source>Feed voltage mode</source>
        <translation>給電モード</translation>
    </message>
    <message>
        <source>not used</source>
        <translation>未使用</translation>
    </message>
    <message>
        <source>Protocol data</source>
        <translation>プロトコルデータ</translation>
    </message>
    <message>
        <source>from KRC</source>
        <translation>KRC から</translation>
    </message>
    <message>
        <source>from external plc</source>
        <translation>外部 PLC から</translation>
    </message>
    <message>
        <source>Desc</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>出力</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>入力</translation>
    </message>
</context>
<context>
    <name>ProgressDialog</name>
    <message>
        <source>Dialog</source>
        <translation>ダイアログ</translation>
    </message>
    <message>
        <source>Please waitting ...</source>
        <translation>お待ちください ...</translation>
    </message>
</context>
<context>
    <name>UsbImport</name>
    <message>
        <source>... and %1 more</source>
        <translation>... 他 %1 件</translation>
    </message>
    <message>
        <source>These files could not be put back:
%1</source>
        <translation>次のファイルを元に戻せませんでした：
%1</translation>
    </message>
    <message>
        <source>The former files were put back.</source>
        <translation>以前のファイルを元に戻しました。</translation>
    </message>
    <message>
        <source>These files were saved since by somebody else and stay as they are:
%1</source>
        <translation>次のファイルはその後、他から保存されたため、そのまま残します：
%1</translation>
    </message>
    <message>
        <source>Comparing...</source>
        <translation>比較中...</translation>
    </message>
    <message>
        <source>Its bus switches cannot be read.</source>
        <translation>バススイッチを読み取れません。</translation>
    </message>
    <message>
        <source>The folder %1 cannot be imported:
%2</source>
        <translation>フォルダ %1 をインポートできません：
%2</translation>
    </message>
    <message>
        <source>The folder %1 is not a whole export:
it brings %2 of %3 files. The others stay as they are.
Import it all the same?</source>
        <translation>フォルダ %1 は完全なエクスポートではありません。
%3 個中 %2 個のファイルです。他はそのまま残ります。
それでもインポートしますか？</translation>
    </message>
    <message>
        <source>Importing...</source>
        <translation>インポート中...</translation>
    </message>
    <message>
        <source>Import file failed!</source>
        <translation>ファイルをインポートできませんでした。</translation>
    </message>
    <message>
        <source>Nothing was changed on the controller.</source>
        <translation>コントローラには変更がありません。</translation>
    </message>
    <message>
        <source>Try again to put the former files back?</source>
        <translation>以前のファイルに戻す処理を再試行しますか？</translation>
    </message>
    <message>
        <source>The controller holds a mixture of former and imported files.
It should not be restarted before they are put back with Import.</source>
        <translation>コントローラに以前のファイルとインポートしたファイルが混在しています。
「インポート」で元に戻すまで、再起動しないでください。</translation>
    </message>
    <message>
        <source>What an earlier import has replaced cannot be read now.
Please try again.</source>
        <translation>以前のインポートで置き換えた内容を現在読み取れません。
もう一度試してください。</translation>
    </message>
    <message>
        <source>An earlier import was neither finished nor undone.
Put the former files of the controller back now?
A new import gives them up once it is sent.</source>
        <translation>以前のインポートが完了も取り消しもされていません。
コントローラの以前のファイルを今戻しますか？
新たにインポートすると、送信後は戻せなくなります。</translation>
    </message>
    <message>
        <source>The USB drive was removed.</source>
        <translation>USB メモリが取り外されました。</translation>
    </message>
    <message>
        <source>The file %1 could not be read.</source>
        <translation>ファイル %1 を読み取れませんでした。</translation>
    </message>
    <message>
        <source>The file %1 could not be fetched from the controller.</source>
        <translation>ファイル %1 をコントローラから取得できませんでした。</translation>
    </message>
    <message>
        <source>The file %1 of the pendant could not be written.</source>
        <translation>ペンダントのファイル %1 を書き込めませんでした。</translation>
    </message>
    <message>
        <source>The file %1 of the controller has changed meanwhile.</source>
        <translation>コントローラのファイル %1 がその間に変更されました。</translation>
    </message>
    <message>
        <source>The file %1 could not be sent to the controller.</source>
        <translation>ファイル %1 をコントローラに送信できませんでした。</translation>
    </message>
    <message>
        <source>Please turn off the servo first!</source>
        <translation>先にサーボをオフにしてください。</translation>
    </message>
    <message>
        <source>The pendant&apos;s copy of %1 has changed meanwhile.</source>
        <translation>ペンダントにある %1 のコピーがその間に変更されました。</translation>
    </message>
    <message>
        <source>The files of the controller take effect with the next restart.</source>
        <translation>コントローラのファイルは次回の再起動で有効になります。</translation>
    </message>
</context>
<context>
    <name>UsbTransfer</name>
    <message>
        <source>Another pendant is importing or exporting in the same directory.</source>
        <translation>別のペンダントが同じディレクトリでインポートまたはエクスポートしています。</translation>
    </message>
    <message>
        <source>The last import or export is still coming to its end.
Please try again in a moment.</source>
        <translation>直前のインポートまたはエクスポートがまだ終了していません。
少し待ってからもう一度試してください。</translation>
    </message>
    <message>
        <source>An earlier import was neither finished nor undone.
With Import the former files can be put back.
Save the bus switches all the same?</source>
        <translation>以前のインポートが完了も取り消しもされていません。
「インポート」で以前のファイルに戻せます。
それでもバススイッチを保存しますか？</translation>
    </message>
    <message>
        <source>No exported bus configuration found on the USB drive!</source>
        <translation>USB メモリにエクスポートされたバス構成が見つかりません。</translation>
    </message>
</context>
</TS>
