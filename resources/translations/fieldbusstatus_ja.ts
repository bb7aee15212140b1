<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>ChangesPage</name>
    <message>
        <source>Import</source>
        <translation>インポート</translation>
    </message>
    <message>
        <source>Import undone</source>
        <translation>インポート取消</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... 他 %1 件</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>ファイル %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>The controller holds the former files already.</source>
        <translation>コントローラには既に以前のファイルがあります。</translation>
    </message>
    <message>
        <source>The former version of %1 can no longer be read.</source>
        <translation>%1 の以前の版を読み取れなくなりました。</translation>
    </message>
    <message>
        <source>The controller does not give %1.</source>
        <translation>コントローラから %1 を取得できません。</translation>
    </message>
    <message>
        <source>%1 was changed since: it stays as it is.</source>
        <translation>%1 はその後変更されたため、そのまま残します。</translation>
    </message>
    <message>
        <source>Please turn off the servo first!</source>
        <translation>先にサーボをオフにしてください。</translation>
    </message>
    <message>
        <source>The pendant cannot keep the present version of %1.</source>
        <translation>ペンダントは %1 の現在の版を保存できません。</translation>
    </message>
    <message>
        <source>%1 did not arrive as it was sent.</source>
        <translation>%1 が送信どおりに届きませんでした。</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>変更</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>What was changed</source>
        <translation>変更内容</translation>
    </message>
    <message>
        <source>This pendant has not changed any file so far.</source>
        <translation>このペンダントではまだファイルを変更していません。</translation>
    </message>
    <message>
        <source>Touch a change to choose it.</source>
        <translation>変更に触れて選択してください。</translation>
    </message>
    <message>
        <source>Chosen: %1, %2</source>
        <translation>選択：%1、%2</translation>
    </message>
    <message>
        <source>%1: it cannot be put back, as not all of it was kept or sent.</source>
        <translation>%1：すべては保存または送信されていないため、元に戻せません。</translation>
    </message>
    <message>
        <source>Put these files back as they were before %1?
%2</source>
        <translation>次のファイルを %1 より前の状態に戻しますか？
%2</translation>
    </message>
    <message>
        <source>Nothing was put back.</source>
        <translation>元に戻したファイルはありません。</translation>
    </message>
    <message>
        <source>These files were put back before:
%1</source>
        <translation>次のファイルはその前に元に戻されました：
%1</translation>
    </message>
    <message>
        <source>Save successfully.</source>
        <translation>保存しました。</translation>
    </message>
    <message>
        <source>Save successfully, Are you sure to restart robot to make it effect?</source>
        <translation>保存しました。有効にするためロボットを再起動しますか？</translation>
    </message>
</context>
<context>
    <name>DeviceNetCodes</name>
    <message>
        <source>no fault</source>
        <translation>異常なし</translation>
    </message>
    <message>
        <source>the network has no link</source>
        <translation>ネットワークがリンクしていません</translation>
    </message>
    <message>
        <source>no answer on the network</source>
        <translation>ネットワーク上で応答なし</translation>
    </message>
    <message>
        <source>another device has its MAC ID</source>
        <translation>別のデバイスと MAC ID が同じ</translation>
    </message>
    <message>
        <source>its MAC ID is none from 1 to 63</source>
        <translation>MAC ID が 1～63 ではない</translation>
    </message>
    <message>
        <source>code %1 of the master&apos;s manual</source>
        <translation>マスタのマニュアルのコード %1</translation>
    </message>
</context>
<context>
    <name>FileChanges</name>
    <message>
        <source>No setting was changed.</source>
        <translation>設定は変更されていません。</translation>
    </message>
    <message>
        <source>The transfer failed; what it left behind is not known.</source>
        <translation>転送に失敗しました。転送先に何が残ったかは不明です。</translation>
    </message>
    <message>
        <source>The former file could not be kept.</source>
        <translation>以前のファイルを保管できませんでした。</translation>
    </message>
    <message>
        <source>What was sent could not be read back.</source>
        <translation>送信した内容を読み戻せませんでした。</translation>
    </message>
    <message>
        <source>What was kept can no longer be read.</source>
        <translation>保管した内容はもう読み取れません。</translation>
    </message>
</context>
<context>
    <name>Findings</name>
    <message>
        <source>The MAC ID %1 stands for two devices of the scan list.</source>
        <translation>MAC ID %1 がスキャンリストの 2 台のデバイスに使われています。</translation>
    </message>
    <message>
        <source>the devices</source>
        <translation>該当デバイス</translation>
    </message>
    <message>
        <source>Give each device a MAC ID of its own on the DeviceNet master page.</source>
        <translation>DeviceNet マスタの画面で各デバイスに固有の MAC ID を設定してください。</translation>
    </message>
    <message>
        <source>The device %2 has the MAC ID %1, which is the master&apos;s own.</source>
        <translation>デバイス %2 の MAC ID %1 はマスタ自身のものです。</translation>
    </message>
    <message>
        <source>the device and WS_ID</source>
        <translation>デバイスと WS_ID</translation>
    </message>
    <message>
        <source>Change the device&apos;s MAC ID or the WS_ID on the DeviceNet master page.</source>
        <translation>DeviceNet マスタの画面でデバイスの MAC ID または WS_ID を変更してください。</translation>
    </message>
    <message>
        <source>The MAC ID %1 of the device %2 is outside 1 to 63.</source>
        <translation>デバイス %2 の MAC ID %1 が 1～63 の範囲外です。</translation>
    </message>
    <message>
        <source>the MAC ID</source>
        <translation>MAC ID</translation>
    </message>
    <message>
        <source>Enter the MAC ID that is set on the device.</source>
        <translation>デバイスに設定されている MAC ID を入力してください。</translation>
    </message>
    <message>
        <source>The MAC ID %1 of the DeviceNet slave is odd.</source>
        <translation>DeviceNet スレーブの MAC ID %1 が奇数です。</translation>
    </message>
    <message>
        <source>Enter an even MAC ID, 2 to 62, on the DeviceNet slave page.</source>
        <translation>DeviceNet スレーブの画面で 2～62 の偶数の MAC ID を入力してください。</translation>
    </message>
    <message>
        <source>The MAC ID &quot;%1&quot; of the DeviceNet slave is no number from 2 to 62.</source>
        <translation>DeviceNet スレーブの MAC ID「%1」が 2～62 の数値ではありません。</translation>
    </message>
    <message>
        <source>The baud rate %2 of the %1 is none of 125, 250 and 500 kbps.</source>
        <translation>%1 の通信速度 %2 が 125、250、500 kbps のいずれでもありません。</translation>
    </message>
    <message>
        <source>the baud rate</source>
        <translation>通信速度</translation>
    </message>
    <message>
        <source>Choose the rate of the network on the page of the role.</source>
        <translation>ロールの画面でネットワークの通信速度を選択してください。</translation>
    </message>
    <message>
        <source>The devices send %1 bytes, but only %2 are mapped.</source>
        <translation>デバイスは %1 バイトを送信しますが、割り当ては %2 バイトだけです。</translation>
    </message>
    <message>
        <source>the sum of the inputs and the mapped Bools</source>
        <translation>入力の合計と割り当てられた Bool</translation>
    </message>
    <message>
        <source>Map more read-only Bools of the DeviceNet master, or make the devices&apos; inputs smaller.</source>
        <translation>DeviceNet マスタの読取専用 Bool を増やすか、デバイスの入力を減らしてください。</translation>
    </message>
    <message>
        <source>The devices take %1 bytes, but only %2 are mapped.</source>
        <translation>デバイスは %1 バイトを受信しますが、割り当ては %2 バイトだけです。</translation>
    </message>
    <message>
        <source>the sum of the outputs and the mapped Bools</source>
        <translation>出力の合計と割り当てられた Bool</translation>
    </message>
    <message>
        <source>Map more write-only Bools of the DeviceNet master, or make the devices&apos; outputs smaller.</source>
        <translation>DeviceNet マスタの書込専用 Bool を増やすか、デバイスの出力を減らしてください。</translation>
    </message>
    <message>
        <source>The registers of the device %1 end at %2, beyond the area, which ends at %3.</source>
        <translation>デバイス %1 のレジスタは %2 で終わり、領域の終わり %3 を超えています。</translation>
    </message>
    <message>
        <source>the block and the area</source>
        <translation>ブロックと領域</translation>
    </message>
    <message>
        <source>Save the scan list again on the DeviceNet master page: it lays the registers out anew.</source>
        <translation>DeviceNet マスタの画面でスキャンリストを保存し直してください。レジスタが再配置されます。</translation>
    </message>
    <message>
        <source>The devices %1 and %2 share registers.</source>
        <translation>デバイス %1 と %2 のレジスタが重複しています。</translation>
    </message>
    <message>
        <source>the two blocks</source>
        <translation>2 つのブロック</translation>
    </message>
    <message>
        <source>The device %1 has neither inputs nor outputs.</source>
        <translation>デバイス %1 に入力も出力もありません。</translation>
    </message>
    <message>
        <source>its bytes</source>
        <translation>そのバイト数</translation>
    </message>
    <message>
        <source>Enter its sizes from its data sheet, or delete it.</source>
        <translation>データシートのサイズを入力するか、削除してください。</translation>
    </message>
    <message>
        <source>The device %1 has %2 bytes in one direction; the page takes up to 64.</source>
        <translation>デバイス %1 は一方向に %2 バイトあります。画面で入力できるのは 64 までです。</translation>
    </message>
    <message>
        <source>Check the size against the device&apos;s data sheet.</source>
        <translation>デバイスのデータシートとサイズを照合してください。</translation>
    </message>
    <message>
        <source>The DeviceNet master is on, but its scan list is empty.</source>
        <translation>DeviceNet マスタがオンですが、スキャンリストが空です。</translation>
    </message>
    <message>
        <source>the number of devices</source>
        <translation>デバイス数</translation>
    </message>
    <message>
        <source>Add the devices on the DeviceNet master page, or switch the role off.</source>
        <translation>DeviceNet マスタの画面でデバイスを追加するか、ロールをオフにしてください。</translation>
    </message>
    <message>
        <source>%1: %2 %3 are mapped, and at most %4 may be.</source>
        <translation>%1：%2 個の %3 が割り当てられています。最大 %4 個です。</translation>
    </message>
    <message>
        <source>the quantity</source>
        <translation>数量</translation>
    </message>
    <message>
        <source>Enter a smaller quantity on the I/O mapping page.</source>
        <translation>構成の画面で数量を小さくしてください。</translation>
    </message>
    <message>
        <source>%1: %2 Bools are no multiple of %3.</source>
        <translation>%1：%2 個の Bool は %3 の倍数ではありません。</translation>
    </message>
    <message>
        <source>Enter the quantity again on the I/O mapping page: it is rounded up.</source>
        <translation>構成の画面で数量を入力し直してください。切り上げられます。</translation>
    </message>
    <message>
        <source>%1: %2 bytes are mapped, and %3 to %4 may be.</source>
        <translation>%1：%2 バイトが割り当てられています。範囲は %3～%4 です。</translation>
    </message>
    <message>
        <source>the sum of the bytes</source>
        <translation>バイト数の合計</translation>
    </message>
    <message>
        <source>Change quantities on the I/O mapping page until the sum is in the range.</source>
        <translation>合計が範囲に入るまで、構成の画面で数量を変更してください。</translation>
    </message>
    <message>
        <source>%1: Bool and Int take %2 bytes, and %3 to %4 may be.</source>
        <translation>%1：Bool と Int で %2 バイトです。範囲は %3～%4 です。</translation>
    </message>
    <message>
        <source>%1: %2 bytes are no multiple of %3.</source>
        <translation>%1：%2 バイトは %3 の倍数ではありません。</translation>
    </message>
    <message>
        <source>the sum of the bytes, the system&apos;s among them</source>
        <translation>システム分を含むバイト数の合計</translation>
    </message>
    <message>
        <source>Change quantities on the I/O mapping page until the sum is a multiple.</source>
        <translation>合計が倍数になるまで、構成の画面で数量を変更してください。</translation>
    </message>
    <message>
        <source>%1: %2 and %3 lie on the same addresses.</source>
        <translation>%1：%2 と %3 のアドレスが重複しています。</translation>
    </message>
    <message>
        <source>the addresses of both</source>
        <translation>両方のアドレス</translation>
    </message>
    <message>
        <source>Enter one of the quantities again on the I/O mapping page: the area is laid out anew.</source>
        <translation>構成の画面でどちらかの数量を入力し直してください。領域が再配置されます。</translation>
    </message>
    <message>
        <source>%1: %2 ends at %4, before it starts at %3.</source>
        <translation>%1：%2 は開始 %3 より前の %4 で終わっています。</translation>
    </message>
    <message>
        <source>the addresses</source>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>Enter the quantity again on the I/O mapping page: the area is laid out anew.</source>
        <translation>構成の画面で数量を入力し直してください。領域が再配置されます。</translation>
    </message>
    <message>
        <source>%1: the addresses of %2 hold another number of variables than its quantity says.</source>
        <translation>%1：%2 のアドレスに入る変数の数が数量と一致しません。</translation>
    </message>
    <message>
        <source>quantity and addresses</source>
        <translation>数量とアドレス</translation>
    </message>
    <message>
        <source>The blocks %2 and %3 of the %1 lie on the same registers.</source>
        <translation>%1 のブロック %2 と %3 のレジスタが重複しています。</translation>
    </message>
    <message>
        <source>the registers of both</source>
        <translation>両方のレジスタ</translation>
    </message>
    <message>
        <source>Move one of them on the I/O mapping page.</source>
        <translation>構成の画面でどちらかを移動してください。</translation>
    </message>
    <message>
        <source>%1: the registers %2 to %3 are outside %4 to %5.</source>
        <translation>%1：レジスタ %2～%3 が %4～%5 の範囲外です。</translation>
    </message>
    <message>
        <source>the registers</source>
        <translation>レジスタ</translation>
    </message>
    <message>
        <source>Enter another start address on the I/O mapping page.</source>
        <translation>構成の画面で別の開始アドレスを入力してください。</translation>
    </message>
    <message>
        <source>Variables are mapped for the %1, which is off.</source>
        <translation>オフの %1 に変数が割り当てられています。</translation>
    </message>
    <message>
        <source>the bytes that are mapped</source>
        <translation>割り当てられたバイト数</translation>
    </message>
    <message>
        <source>Nothing, unless the role should be on.</source>
        <translation>何もしません。ロールをオンにすべき場合を除きます。</translation>
    </message>
    <message>
        <source>The %1 is on, but nothing is mapped for it in the mode that runs.</source>
        <translation>%1 がオンですが、動作中のモードでは何も割り当てられていません。</translation>
    </message>
    <message>
        <source>the mode</source>
        <translation>モード</translation>
    </message>
    <message>
        <source>Enter quantities on the I/O mapping page, or switch the role off.</source>
        <translation>構成の画面で数量を入力するか、ロールをオフにしてください。</translation>
    </message>
    <message>
        <source>The byte order of the %1 is another one in its free variant: it changes when FreeBus is switched on.</source>
        <translation>%1 のバイトオーダーがフリー版では異なります。FreeBus をオンにすると変わります。</translation>
    </message>
    <message>
        <source>the byte order in both files</source>
        <translation>両ファイルのバイトオーダー</translation>
    </message>
    <message>
        <source>Save the page of the role once more: it writes all variants.</source>
        <translation>ロールの画面を保存し直してください。すべての版に書き込まれます。</translation>
    </message>
    <message>
        <source>The byte order of the %1 is another one in its fixed variant: it changes when FreeBus is switched off.</source>
        <translation>%1 のバイトオーダーが固定版では異なります。FreeBus をオフにすると変わります。</translation>
    </message>
    <message>
        <source>The byte order &quot;%2&quot; of the %1 is not one of the four that the driver knows.</source>
        <translation>%1 のバイトオーダー「%2」はドライバが対応する 4 種類のいずれでもありません。</translation>
    </message>
    <message>
        <source>the byte order</source>
        <translation>バイトオーダー</translation>
    </message>
    <message>
        <source>Choose the byte order on the page of the role, and save.</source>
        <translation>ロールの画面でバイトオーダーを選択し、保存してください。</translation>
    </message>
    <message>
        <source>The connection of the %1 is watched, but the role is off: its loss will be reported.</source>
        <translation>%1 の接続が監視されていますが、ロールはオフです。接続断が報告されます。</translation>
    </message>
    <message>
        <source>the watch and the role</source>
        <translation>監視とロール</translation>
    </message>
    <message>
        <source>Switch the watch off on the heartbeat page, or the role on.</source>
        <translation>ハートビート監視の画面で監視をオフにするか、ロールをオンにしてください。</translation>
    </message>
    <message>
        <source>The connection of the %1 is watched with the time 0: any moment without a link is a loss.</source>
        <translation>%1 の接続が時間 0 で監視されています。瞬間的な切断も接続断になります。</translation>
    </message>
    <message>
        <source>the time-out</source>
        <translation>タイムアウト</translation>
    </message>
    <message>
        <source>Enter a time-out on the heartbeat page.</source>
        <translation>ハートビート監視の画面で時間を入力してください。</translation>
    </message>
    <message>
        <source>The watch of the %1 ends after %2 s, sooner than a scan of its devices takes (%3 s).</source>
        <translation>%1 の監視は %2 秒で終わり、デバイスのスキャン時間（%3 秒）より短くなっています。</translation>
    </message>
    <message>
        <source>the time-out and the scan time</source>
        <translation>タイムアウトとスキャン時間</translation>
    </message>
    <message>
        <source>Enter a longer time-out on the heartbeat page.</source>
        <translation>ハートビート監視の画面でより長い時間を入力してください。</translation>
    </message>
    <message>
        <source>The watch of the %1 ends after %2 s, sooner than its own time-out (%3 s): a slow answer is reported as a loss.</source>
        <translation>%1 の監視は %2 秒で終わり、自身のタイムアウト（%3 秒）より短くなっています。遅い応答が接続断と報告されます。</translation>
    </message>
    <message>
        <source>the two time-outs</source>
        <translation>2 つのタイムアウト</translation>
    </message>
    <message>
        <source>Enter a longer time-out on the heartbeat page, or a shorter one on the page of the role.</source>
        <translation>ハートビート監視の画面でより長い時間を、またはロールの画面でより短い時間を入力してください。</translation>
    </message>
    <message>
        <source>The connection of the %1 is not watched: its loss is not reported.</source>
        <translation>%1 の接続は監視されていません。接続断は報告されません。</translation>
    </message>
    <message>
        <source>the watch</source>
        <translation>監視</translation>
    </message>
    <message>
        <source>Switch the watch on on the heartbeat page where a loss must stop the robot.</source>
        <translation>接続断でロボットを停止させる必要がある場合は、ハートビート監視の画面で監視をオンにしてください。</translation>
    </message>
    <message>
        <source>The time-out of the watch of the %1 is no time.</source>
        <translation>%1 の監視タイムアウトが時間として正しくありません。</translation>
    </message>
    <message>
        <source>%1 of the %2 is %3, outside %4 to %5.</source>
        <translation>%2 の%1が %3 で、%4～%5 の範囲外です。</translation>
    </message>
    <message>
        <source>the value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Enter a value in the range on the page of the role.</source>
        <translation>ロールの画面で範囲内の値を入力してください。</translation>
    </message>
    <message>
        <source>%1 of the %2 is &quot;%3&quot;, which is no number.</source>
        <translation>%2 の%1が「%3」で、数値ではありません。</translation>
    </message>
    <message>
        <source>Enter a number on the page of the role.</source>
        <translation>ロールの画面で数値を入力してください。</translation>
    </message>
    <message>
        <source>The %1 is to serve %2 slaves; 0 to 9 are possible.</source>
        <translation>%1 のスレーブ数が %2 です。0～9 が可能です。</translation>
    </message>
    <message>
        <source>the slave count</source>
        <translation>スレーブ数</translation>
    </message>
    <message>
        <source>Enter the number of slaves on the page of the role.</source>
        <translation>ロールの画面でスレーブ数を入力してください。</translation>
    </message>
    <message>
        <source>The slave %2 of the %1 is both fixed and dynamic.</source>
        <translation>%1 のスレーブ %2 が固定かつ動的になっています。</translation>
    </message>
    <message>
        <source>the two flags</source>
        <translation>2 つのフラグ</translation>
    </message>
    <message>
        <source>Clear one of the two check boxes on the page of the role.</source>
        <translation>ロールの画面でどちらかのチェックを外してください。</translation>
    </message>
    <message>
        <source>The slave %2 of the %1 is marked, but only %3 are served.</source>
        <translation>%1 のスレーブ %2 にチェックがありますが、対象は %3 台だけです。</translation>
    </message>
    <message>
        <source>the flag and the slave count</source>
        <translation>フラグとスレーブ数</translation>
    </message>
    <message>
        <source>Enter a higher number of slaves on the page of the role, or clear the mark.</source>
        <translation>ロールの画面でスレーブ数を増やすか、チェックを外してください。</translation>
    </message>
    <message>
        <source>The link of the %1 is down, and its settings are consistent: the cable or the partner.</source>
        <translation>%1 のリンクが切れていますが、設定に矛盾はありません。ケーブルまたは相手側が原因です。</translation>
    </message>
    <message>
        <source>the link</source>
        <translation>リンク</translation>
    </message>
    <message>
        <source>Look at the link light of the connector: dark, it is the cable or the partner&apos;s power; lit, it is the partner&apos;s configuration.</source>
        <translation>コネクタのリンク表示灯を見てください。消灯ならケーブルか相手側の電源、点灯なら相手側の設定です。</translation>
    </message>
    <message>
        <source>The %1 needs a fieldbus module in the slave slot, and none is found.</source>
        <translation>%1 に必要なフィールドバスモジュールがスレーブスロットに見つかりません。</translation>
    </message>
    <message>
        <source>the module&apos;s code</source>
        <translation>モジュールのコード</translation>
    </message>
    <message>
        <source>Switch the controller off and check that the module is in its slot.</source>
        <translation>コントローラの電源を切り、モジュールがスロットにあるか確認してください。</translation>
    </message>
    <message>
        <source>The fieldbus module in the slave slot is not one for the %1.</source>
        <translation>スレーブスロットのフィールドバスモジュールは %1 用ではありません。</translation>
    </message>
    <message>
        <source>the module&apos;s code and the one that is needed</source>
        <translation>モジュールのコードと必要なコード</translation>
    </message>
    <message>
        <source>Fit the right module, or switch the role off.</source>
        <translation>正しいモジュールを装着するか、ロールをオフにしてください。</translation>
    </message>
    <message>
        <source>The partner of the %1 refuses or answers with errors.</source>
        <translation>%1 の相手側が拒否しているか、エラーで応答しています。</translation>
    </message>
    <message>
        <source>the link and the error</source>
        <translation>リンクとエラー</translation>
    </message>
    <message>
        <source>Compare address, port and unit or node with the partner&apos;s settings.</source>
        <translation>アドレス、ポート、ユニットまたはノードを相手側の設定と照合してください。</translation>
    </message>
    <message>
        <source>No partner is connected to the %1.</source>
        <translation>%1 に接続している相手がありません。</translation>
    </message>
    <message>
        <source>the connection</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>Start the partner&apos;s program, and check that it connects to the robot&apos;s address and port.</source>
        <translation>相手側のプログラムを起動し、ロボットのアドレスとポートに接続しているか確認してください。</translation>
    </message>
    <message>
        <source>The %1 is on, but its server does not run.</source>
        <translation>%1 がオンですが、サーバーが動作していません。</translation>
    </message>
    <message>
        <source>the server&apos;s state</source>
        <translation>サーバーの状態</translation>
    </message>
    <message>
        <source>Press Start Monitor on its page; when it does not start, its port is taken.</source>
        <translation>画面で「監視開始」を押してください。起動しない場合はポートが使用中です。</translation>
    </message>
    <message>
        <source>The device %1 (MAC ID %2) does not answer on the network.</source>
        <translation>デバイス %1（MAC ID %2）が応答しません。</translation>
    </message>
    <message>
        <source>state and code of the device</source>
        <translation>デバイスの状態とコード</translation>
    </message>
    <message>
        <source>Check the device&apos;s power, its plug and the MAC ID that is set on it.</source>
        <translation>デバイスの電源、コネクタ、設定されている MAC ID を確認してください。</translation>
    </message>
    <message>
        <source>The device %1 was not taken: another one has its MAC ID %2.</source>
        <translation>デバイス %1 は受け付けられませんでした。MAC ID %2 は別のデバイスのものです。</translation>
    </message>
    <message>
        <source>Give each device a MAC ID of its own, on the device and in the scan list.</source>
        <translation>デバイス本体とスキャンリストで、各デバイスに固有の MAC ID を設定してください。</translation>
    </message>
    <message>
        <source>The device %1 (MAC ID %2) is down with the code %3.</source>
        <translation>デバイス %1（MAC ID %2）がコード %3 で停止しています。</translation>
    </message>
    <message>
        <source>Look the code up in the manual of the DeviceNet master.</source>
        <translation>DeviceNet マスタのマニュアルでコードを調べてください。</translation>
    </message>
    <message>
        <source>The slave %2 of the %1 is not connected.</source>
        <translation>%1 のスレーブ %2 が接続されていません。</translation>
    </message>
    <message>
        <source>state of the slave</source>
        <translation>スレーブの状態</translation>
    </message>
    <message>
        <source>Check the slave&apos;s power and cable, and its place in the master&apos;s configuration.</source>
        <translation>スレーブの電源、ケーブル、マスタの構成での位置を確認してください。</translation>
    </message>
    <message>
        <source>The %1 was saved as %2, but runs as %3 until the robot is restarted.</source>
        <translation>%1 は %2 として保存されましたが、ロボットを再起動するまで %3 として動作します。</translation>
    </message>
    <message>
        <source>the file and what came up</source>
        <translation>ファイルと起動した内容</translation>
    </message>
    <message>
        <source>Restart the robot when production allows it.</source>
        <translation>生産に支障がないときにロボットを再起動してください。</translation>
    </message>
    <message>
        <source>The controller has not taken over what was announced.</source>
        <translation>通知された内容をコントローラが取り込んでいません。</translation>
    </message>
    <message>
        <source>the variable that announces it</source>
        <translation>通知する変数</translation>
    </message>
    <message>
        <source>Wait a moment; when it stays, restart the robot and save again.</source>
        <translation>少し待ってください。変わらない場合はロボットを再起動し、保存し直してください。</translation>
    </message>
    <message>
        <source>The controller has rejected the I/O mapping.</source>
        <translation>コントローラが構成を拒否しました。</translation>
    </message>
    <message>
        <source>the controller&apos;s answer</source>
        <translation>コントローラの応答</translation>
    </message>
    <message>
        <source>Look for findings about the mapping, correct it on the I/O mapping page, and save again.</source>
        <translation>構成に関する所見を確認し、構成の画面で修正して保存し直してください。</translation>
    </message>
    <message>
        <source>The controller has not taken the command to open or close the %1.</source>
        <translation>%1 を開く、または閉じるコマンドをコントローラが受け付けていません。</translation>
    </message>
    <message>
        <source>the command</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Restart the robot and switch the role again.</source>
        <translation>ロボットを再起動し、ロールを切り替え直してください。</translation>
    </message>
    <message>
        <source>The link of the %1 has been down for %2 s; the watch reports the loss after %3 s.</source>
        <translation>%1 のリンクが %2 秒間切れています。%3 秒で監視が接続断を報告します。</translation>
    </message>
    <message>
        <source>the link and the watch&apos;s time-out</source>
        <translation>リンクと監視タイムアウト</translation>
    </message>
    <message>
        <source>Bring the link back, or stop the robot in order.</source>
        <translation>リンクを復旧するか、ロボットを正常に停止してください。</translation>
    </message>
    <message>
        <source>The link of the %1 has been down for %2 s, and the watch has reported the loss after %3 s.</source>
        <translation>%1 のリンクが %2 秒間切れ、%3 秒で監視が接続断を報告しました。</translation>
    </message>
    <message>
        <source>Bring the link back; then acknowledge the alarm.</source>
        <translation>リンクを復旧し、その後アラームを確認してください。</translation>
    </message>
    <message>
        <source>%1 is missing.</source>
        <translation>%1 がありません。</translation>
    </message>
    <message>
        <source>the file&apos;s place on the controller</source>
        <translation>コントローラ上のファイルの場所</translation>
    </message>
    <message>
        <source>Export again; when it is missing then too, restore the file from a backup.</source>
        <translation>エクスポートし直してください。それでもない場合はバックアップから復元してください。</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 が空です。</translation>
    </message>
    <message>
        <source>the file&apos;s size</source>
        <translation>ファイルのサイズ</translation>
    </message>
    <message>
        <source>Restore the file from a backup: the controller cannot use it.</source>
        <translation>バックアップからファイルを復元してください。コントローラはこのファイルを使用できません。</translation>
    </message>
    <message>
        <source>%1 is no well-formed XML.</source>
        <translation>%1 は整形式の XML ではありません。</translation>
    </message>
    <message>
        <source>the first place that cannot be read</source>
        <translation>読み取れない最初の箇所</translation>
    </message>
    <message>
        <source>Restore the file from a backup, or correct the line that is named.</source>
        <translation>バックアップから復元するか、示された行を修正してください。</translation>
    </message>
    <message>
        <source>%1 is another file than its name says.</source>
        <translation>%1 は名前とは異なるファイルです。</translation>
    </message>
    <message>
        <source>the element that it begins with</source>
        <translation>先頭の要素</translation>
    </message>
    <message>
        <source>Find out what was copied to its place, and restore the right file.</source>
        <translation>何が上書きされたかを調べ、正しいファイルに戻してください。</translation>
    </message>
    <message>
        <source>%1 is only a part of a file.</source>
        <translation>%1 はファイルの一部だけです。</translation>
    </message>
    <message>
        <source>what it lacks</source>
        <translation>不足している内容</translation>
    </message>
    <message>
        <source>Restore the file from a backup.</source>
        <translation>バックアップからファイルを復元してください。</translation>
    </message>
    <message>
        <source>%1 is larger than any file of a controller.</source>
        <translation>%1 はコントローラのどのファイルよりも大きいです。</translation>
    </message>
    <message>
        <source>%1 is no text in the encoding that the controller reads.</source>
        <translation>%1 はコントローラが読める文字コードのテキストではありません。</translation>
    </message>
    <message>
        <source>what is wrong with its bytes</source>
        <translation>バイト列の誤り</translation>
    </message>
    <message>
        <source>Restore the file from a backup, or save it as UTF-8.</source>
        <translation>バックアップから復元するか、UTF-8 で保存してください。</translation>
    </message>
    <message>
        <source>%1 holds an element &lt;%2&gt; that is not known here.</source>
        <translation>%1 に未知の要素 &lt;%2&gt; があります。</translation>
    </message>
    <message>
        <source>the element</source>
        <translation>要素</translation>
    </message>
    <message>
        <source>Nothing: it is kept as it is. Look for a misspelling when a setting has no effect.</source>
        <translation>何もしません。そのまま残ります。設定が効かない場合は綴りの誤りを確認してください。</translation>
    </message>
    <message>
        <source>The list of roles names &quot;%1&quot;, which is not known here.</source>
        <translation>ロールの一覧に未知の「%1」があります。</translation>
    </message>
    <message>
        <source>the role and whether it is on</source>
        <translation>ロールとそのオン／オフ</translation>
    </message>
    <message>
        <source>Nothing, unless it is a misspelling of a role.</source>
        <translation>何もしません。ロール名の綴りの誤りを除きます。</translation>
    </message>
    <message>
        <source>The list of roles names &quot;%1&quot; more than once; only the first entry counts.</source>
        <translation>ロールの一覧に「%1」が複数あります。最初の項目だけが有効です。</translation>
    </message>
    <message>
        <source>the role</source>
        <translation>ロール</translation>
    </message>
    <message>
        <source>Remove the other entries from fieldbus.xml.</source>
        <translation>fieldbus.xml から他の項目を削除してください。</translation>
    </message>
    <message>
        <source>Two files disagree about whether the %1 is on.</source>
        <translation>%1 のオン／オフについて 2 つのファイルが矛盾しています。</translation>
    </message>
    <message>
        <source>what each of them says</source>
        <translation>それぞれの内容</translation>
    </message>
    <message>
        <source>Save the bus switches once more and restart the robot.</source>
        <translation>バススイッチを保存し直し、ロボットを再起動してください。</translation>
    </message>
    <message>
        <source>EtherNet/IP master, EtherCAT master and PROFINET master exclude each other, and more than one is on.</source>
        <translation>EtherNet/IP マスタ、EtherCAT マスタ、PROFINET マスタは排他ですが、複数がオンです。</translation>
    </message>
    <message>
        <source>the masters that are on</source>
        <translation>オンのマスタ</translation>
    </message>
    <message>
        <source>Switch all of them off but one on the bus switch page.</source>
        <translation>バス設定の画面で 1 つを残してオフにしてください。</translation>
    </message>
    <message>
        <source>DeviceNet slave and DeviceNet master exclude each other, and both are on.</source>
        <translation>DeviceNet スレーブと DeviceNet マスタは排他ですが、両方がオンです。</translation>
    </message>
    <message>
        <source>the two roles</source>
        <translation>2 つのロール</translation>
    </message>
    <message>
        <source>Switch one of them off on the bus switch page.</source>
        <translation>バス設定の画面でどちらかをオフにしてください。</translation>
    </message>
    <message>
        <source>The %1 is on without the bus free configuration, which it needs.</source>
        <translation>%1 がオンですが、必要なバスのフリー構成がオフです。</translation>
    </message>
    <message>
        <source>the role and FreeBus</source>
        <translation>ロールと FreeBus</translation>
    </message>
    <message>
        <source>Switch FreeBus on, or the role off.</source>
        <translation>FreeBus をオンにするか、ロールをオフにしてください。</translation>
    </message>
    <message>
        <source>The %1 is on, but its device %2 is switched off.</source>
        <translation>%1 がオンですが、そのデバイス %2 がオフです。</translation>
    </message>
    <message>
        <source>the role and the device&apos;s line</source>
        <translation>ロールとデバイスの行</translation>
    </message>
    <message>
        <source>Activate the device on the page of the role, and restart the robot.</source>
        <translation>ロールの画面でデバイスを有効にし、ロボットを再起動してください。</translation>
    </message>
    <message>
        <source>The device number %1 is in use under two names.</source>
        <translation>デバイス番号 %1 が 2 つの名前で使われています。</translation>
    </message>
    <message>
        <source>the lines that have it in use</source>
        <translation>使用している行</translation>
    </message>
    <message>
        <source>Deactivate one of them on the page of its role.</source>
        <translation>該当ロールの画面でどちらかを無効にしてください。</translation>
    </message>
    <message>
        <source>The device %2 is in use, but the %1 is off.</source>
        <translation>デバイス %2 が使用中ですが、%1 がオフです。</translation>
    </message>
    <message>
        <source>the device&apos;s line and the role</source>
        <translation>デバイスの行とロール</translation>
    </message>
    <message>
        <source>The Modbus TCP slave is listed as off; the controller runs it all the same.</source>
        <translation>Modbus TCP スレーブは一覧ではオフですが、コントローラは動作させています。</translation>
    </message>
    <message>
        <source>Nothing: the next save of the bus switches brings it back.</source>
        <translation>何もしません。次にバススイッチを保存すると元に戻ります。</translation>
    </message>
    <message>
        <source>The master card is in use by more than one master: %1.</source>
        <translation>マスタカードを複数のマスタが使用しています：%1。</translation>
    </message>
    <message>
        <source>the lines of the devices</source>
        <translation>デバイスの行</translation>
    </message>
    <message>
        <source>Deactivate the device of the master that is not wanted on its page.</source>
        <translation>不要なマスタの画面でそのデバイスを無効にしてください。</translation>
    </message>
    <message>
        <source>The %1 has the address %2, which is no network port&apos;s of the robot.</source>
        <translation>%1 のアドレス %2 はロボットのどのネットワークポートのものでもありません。</translation>
    </message>
    <message>
        <source>the address and those of the ports</source>
        <translation>アドレスとポートのアドレス</translation>
    </message>
    <message>
        <source>Choose the port again on the page of the role and save, or correct the port&apos;s address.</source>
        <translation>ロールの画面でポートを選択し直して保存するか、ポートのアドレスを修正してください。</translation>
    </message>
    <message>
        <source>The %1 has another net mask than the port with its address.</source>
        <translation>%1 のネットマスクが、同じアドレスのポートと異なります。</translation>
    </message>
    <message>
        <source>the two masks</source>
        <translation>2 つのマスク</translation>
    </message>
    <message>
        <source>Choose the port again on the page of the role and save.</source>
        <translation>ロールの画面でポートを選択し直して保存してください。</translation>
    </message>
    <message>
        <source>The ports %1 and %2 are in the same net: it is open which of them answers.</source>
        <translation>ポート %1 と %2 が同じネットワークにあり、どちらが応答するか不定です。</translation>
    </message>
    <message>
        <source>addresses and masks of the two</source>
        <translation>両方のアドレスとマスク</translation>
    </message>
    <message>
        <source>Give one of them an address in another net.</source>
        <translation>どちらかを別のネットワークのアドレスにしてください。</translation>
    </message>
    <message>
        <source>The ports %1 and %2 have the same address.</source>
        <translation>ポート %1 と %2 のアドレスが同じです。</translation>
    </message>
    <message>
        <source>the address</source>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>Give one of them another address.</source>
        <translation>どちらかに別のアドレスを設定してください。</translation>
    </message>
    <message>
        <source>The %1 connects to %2, which is the robot itself.</source>
        <translation>%1 の接続先 %2 はロボット自身です。</translation>
    </message>
    <message>
        <source>the partner&apos;s address and the ports&apos;</source>
        <translation>相手側とポートのアドレス</translation>
    </message>
    <message>
        <source>Enter the partner&apos;s address on the page of the role.</source>
        <translation>ロールの画面で相手側のアドレスを入力してください。</translation>
    </message>
    <message>
        <source>The %1 connects to %2, which never leaves the controller.</source>
        <translation>%1 の接続先 %2 はコントローラの外に出ません。</translation>
    </message>
    <message>
        <source>the partner&apos;s address</source>
        <translation>相手側のアドレス</translation>
    </message>
    <message>
        <source>Nothing in a trial; in a plant enter the partner&apos;s address on the page of the role.</source>
        <translation>試験であれば何もしません。実機ではロールの画面で相手側のアドレスを入力してください。</translation>
    </message>
    <message>
        <source>&quot;%2&quot; of the %1 is no IPv4 address.</source>
        <translation>%1 の「%2」は IPv4 アドレスではありません。</translation>
    </message>
    <message>
        <source>the text</source>
        <translation>文字列</translation>
    </message>
    <message>
        <source>Enter four numbers from 0 to 255 with points between them.</source>
        <translation>0～255 の数字 4 つをピリオドで区切って入力してください。</translation>
    </message>
    <message>
        <source>The %1 connects to %2, which is in no net of the robot&apos;s ports.</source>
        <translation>%1 の接続先 %2 はロボットのどのポートのネットワークにもありません。</translation>
    </message>
    <message>
        <source>the partner&apos;s address and the ports&apos; nets</source>
        <translation>相手側のアドレスとポートのネットワーク</translation>
    </message>
    <message>
        <source>Check the address, or give a port one in the partner&apos;s net, unless a router is between them.</source>
        <translation>アドレスを確認するか、間にルーターがなければポートに相手側ネットワークのアドレスを設定してください。</translation>
    </message>
    <message>
        <source>&quot;%2&quot; is no net mask (%1).</source>
        <translation>「%2」はネットマスクではありません（%1）。</translation>
    </message>
    <message>
        <source>Enter a mask such as 255.255.255.0.</source>
        <translation>255.255.255.0 のようなマスクを入力してください。</translation>
    </message>
    <message>
        <source>The %1 listens on the port %2, which %3 of the controller has taken.</source>
        <translation>%1 の待受ポート %2 はコントローラの %3 が使用しています。</translation>
    </message>
    <message>
        <source>the port</source>
        <translation>ポート</translation>
    </message>
    <message>
        <source>Choose another port on the page of the role, 8008 for example.</source>
        <translation>ロールの画面で別のポート（例：8008）を選択してください。</translation>
    </message>
    <message>
        <source>The %1 listens on the port %2, which %3 uses as well.</source>
        <translation>%1 の待受ポート %2 は %3 も使用しています。</translation>
    </message>
    <message>
        <source>the port in both files</source>
        <translation>両ファイルのポート</translation>
    </message>
    <message>
        <source>Choose another port for one of the two.</source>
        <translation>どちらかに別のポートを選択してください。</translation>
    </message>
    <message>
        <source>&quot;%2&quot; of the %1 is no TCP port.</source>
        <translation>%1 の「%2」は TCP ポートではありません。</translation>
    </message>
    <message>
        <source>Enter a number from 1 to 65535 on the page of the role.</source>
        <translation>ロールの画面で 1～65535 の数値を入力してください。</translation>
    </message>
    <message>
        <source>The %1 uses the network port %2, which has no address.</source>
        <translation>%1 が使用するネットワークポート %2 にアドレスがありません。</translation>
    </message>
    <message>
        <source>Give the port an address, or choose the other one on the page of the role.</source>
        <translation>ポートにアドレスを設定するか、ロールの画面でもう一方を選択してください。</translation>
    </message>
    <message>
        <source>The FINS node %1 is the server&apos;s: nodes are the last number of the address.</source>
        <translation>FINS ノード %1 はサーバーのものです。ノードはアドレスの最後の数字です。</translation>
    </message>
    <message>
        <source>the node and the server&apos;s address</source>
        <translation>ノードとサーバーのアドレス</translation>
    </message>
    <message>
        <source>Enter the last number of the robot&apos;s own address as client node.</source>
        <translation>クライアントノードにロボット自身のアドレスの最後の数字を入力してください。</translation>
    </message>
    <message>
        <source>The FINS node %1 is outside 1 to 254.</source>
        <translation>FINS ノード %1 が 1～254 の範囲外です。</translation>
    </message>
    <message>
        <source>the node</source>
        <translation>ノード</translation>
    </message>
    <message>
        <source>The FINS node %1 is not the last number of the address of %2.</source>
        <translation>FINS ノード %1 が %2 のアドレスの最後の数字ではありません。</translation>
    </message>
    <message>
        <source>the node and the port&apos;s address</source>
        <translation>ノードとポートのアドレス</translation>
    </message>
    <message>
        <source>Nothing, unless the server assigns nodes by address.</source>
        <translation>何もしません。サーバーがアドレスでノードを割り当てる場合を除きます。</translation>
    </message>
    <message>
        <source>The DM address %1 is outside 0 to 32767.</source>
        <translation>DM アドレス %1 が 0～32767 の範囲外です。</translation>
    </message>
    <message>
        <source>Enter an address that the server has.</source>
        <translation>サーバーにあるアドレスを入力してください。</translation>
    </message>
    <message>
        <source>The FINS client reads and writes at the same DM address, %1.</source>
        <translation>FINS クライアントの読取と書込の DM アドレスが同じ %1 です。</translation>
    </message>
    <message>
        <source>the two addresses</source>
        <translation>2 つのアドレス</translation>
    </message>
    <message>
        <source>Enter another address for one direction: the robot reads what it wrote.</source>
        <translation>一方向に別のアドレスを入力してください。ロボットが自身の書いた値を読みます。</translation>
    </message>
    <message>
        <source>The settings of the %1 were saved, but run after the next restart only.</source>
        <translation>%1 の設定は保存されましたが、次回の再起動後に有効になります。</translation>
    </message>
    <message>
        <source>what was changed, as saved and as it came up</source>
        <translation>変更内容（保存時と起動時）</translation>
    </message>
    <message>
        <source>The controller has refused the bus switches that were saved.</source>
        <translation>保存したバススイッチをコントローラが拒否しました。</translation>
    </message>
    <message>
        <source>Check on the bus switch page which roles are on, and save once more.</source>
        <translation>バス設定の画面でオンのロールを確認し、保存し直してください。</translation>
    </message>
</context>
<context>
    <name>FindingsPage</name>
    <message>
        <source>Findings</source>
        <translation>所見</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>コード</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>ロール</translation>
    </message>
    <message>
        <source>Cause and what to do</source>
        <translation>原因と対処</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>問題は見つかりませんでした。</translation>
    </message>
    <message numerus="yes">
        <source>%n finding(s), the worst first</source>
        <translation>
            <numerusform>所見 %n 件、重大な順</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>%1 after %2</source>
        <translation>%1（%2 後）</translation>
    </message>
    <message>
        <source>The pendant was started</source>
        <translation>ペンダントが起動しました</translation>
    </message>
    <message>
        <source>The controller does not answer: it restarts, or its cable is out</source>
        <translation>コントローラが応答しません。再起動中か、ケーブルが外れています</translation>
    </message>
    <message>
        <source>The controller is back</source>
        <translation>コントローラが復帰しました</translation>
    </message>
    <message>
        <source>Link lost</source>
        <translation>リンク切断</translation>
    </message>
    <message>
        <source>Link back</source>
        <translation>リンク復帰</translation>
    </message>
    <message>
        <source>The controller refused %1</source>
        <translation>コントローラが %1 を拒否しました</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... 他 %1 件</translation>
    </message>
    <message>
        <source>%1 was sent</source>
        <translation>%1 を送信しました</translation>
    </message>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>ロール</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>All roles</source>
        <translation>すべてのロール</translation>
    </message>
    <message>
        <source>No loss of the link that has ended.</source>
        <translation>終了したリンク切断はありません。</translation>
    </message>
    <message>
        <source>Longest loss: %1.</source>
        <translation>最長の切断：%1。</translation>
    </message>
    <message>
        <source>The watch trips after %1 s.</source>
        <translation>%1 秒で監視が作動します。</translation>
    </message>
    <message>
        <source>The link is not watched.</source>
        <translation>リンクは監視されていません。</translation>
    </message>
</context>
<context>
    <name>OverviewPage</name>
    <message>
        <source>State of the roles</source>
        <translation>ロールの状態</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>ロール</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>リンク</translation>
    </message>
    <message>
        <source>Since</source>
        <translation>以降</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>所見</translation>
    </message>
    <message>
        <source>What runs</source>
        <translation>動作内容</translation>
    </message>
    <message>
        <source>Saved, runs after the next restart: %1</source>
        <translation>保存済み、次回の再起動後に動作：%1</translation>
    </message>
    <message>
        <source>up</source>
        <translation>稼働中</translation>
    </message>
    <message>
        <source>down</source>
        <translation>切断</translation>
    </message>
    <message>
        <source>Switched
on</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Runs
now</source>
        <translation>動作中</translation>
    </message>
</context>
<context>
    <name>RolePage</name>
    <message>
        <source>State and settings of the role</source>
        <translation>ロールの状態と設定</translation>
    </message>
    <message>
        <source>What</source>
        <translation>項目</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>up</source>
        <translation>稼働中</translation>
    </message>
    <message>
        <source>down</source>
        <translation>切断</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>%1 since %2</source>
        <translation>%1（%2 から）</translation>
    </message>
    <message>
        <source>Switched on</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Runs now</source>
        <translation>動作中</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>リンク</translation>
    </message>
    <message>
        <source>Saved, runs after the next restart</source>
        <translation>保存済み、次回の再起動後に動作</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>対処</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>所見</translation>
    </message>
    <message>
        <source>Device %1, MAC ID %2</source>
        <translation>デバイス %1、MAC ID %2</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>not connected: %1 (code %2)</source>
        <translation>未接続：%1（コード %2）</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>デバイス</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>未接続</translation>
    </message>
    <message>
        <source>the coupling failed</source>
        <translation>結合に失敗</translation>
    </message>
    <message>
        <source>the decoupling failed</source>
        <translation>切離しに失敗</translation>
    </message>
    <message>
        <source>Slave %1, dynamic</source>
        <translation>スレーブ %1、動的</translation>
    </message>
    <message>
        <source>Slave %1, fixed</source>
        <translation>スレーブ %1、固定</translation>
    </message>
    <message>
        <source>Slave %1</source>
        <translation>スレーブ %1</translation>
    </message>
    <message>
        <source>Slaves</source>
        <translation>スレーブ</translation>
    </message>
    <message>
        <source>Settings: %1 (%2)</source>
        <translation>設定：%1（%2）</translation>
    </message>
    <message>
        <source>%1 goes out as %2</source>
        <translation>%1 は %2 として送信</translation>
    </message>
    <message>
        <source>could not be fetched the last time: what is shown of it is older</source>
        <translation>前回は取得できず、古い内容を表示しています</translation>
    </message>
    <message>
        <source>could not be fetched</source>
        <translation>取得できませんでした</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>missing</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>there</source>
        <translation>あり</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>破損</translation>
    </message>
    <message>
        <source>not set</source>
        <translation>未設定</translation>
    </message>
    <message>
        <source>addresses move</source>
        <translation>アドレスが移動</translation>
    </message>
    <message>
        <source>on</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>port</source>
        <translation>ポート</translation>
    </message>
    <message>
        <source>mode</source>
        <translation>モード</translation>
    </message>
    <message>
        <source>protocol</source>
        <translation>プロトコル</translation>
    </message>
    <message>
        <source>interval</source>
        <translation>間隔</translation>
    </message>
    <message>
        <source>network port</source>
        <translation>ネットワークポート</translation>
    </message>
    <message>
        <source>server&apos;s IP address</source>
        <translation>サーバーの IP アドレス</translation>
    </message>
    <message>
        <source>server&apos;s port</source>
        <translation>サーバーのポート</translation>
    </message>
    <message>
        <source>node</source>
        <translation>ノード</translation>
    </message>
    <message>
        <source>connects by itself</source>
        <translation>自動接続</translation>
    </message>
    <message>
        <source>first DM word read</source>
        <translation>最初の読取 DM ワード</translation>
    </message>
    <message>
        <source>first DM word written</source>
        <translation>最初の書込 DM ワード</translation>
    </message>
    <message>
        <source>network port %1</source>
        <translation>ネットワークポート %1</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP アドレス</translation>
    </message>
    <message>
        <source>network mask</source>
        <translation>ネットマスク</translation>
    </message>
    <message>
        <source>free</source>
        <translation>フリー</translation>
    </message>
    <message>
        <source>fixed</source>
        <translation>固定</translation>
    </message>
    <message>
        <source>read only</source>
        <translation>読取専用</translation>
    </message>
    <message>
        <source>write only</source>
        <translation>書込専用</translation>
    </message>
    <message>
        <source>read and write</source>
        <translation>読み書き</translation>
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
        <translation>Bool アドレス</translation>
    </message>
    <message>
        <source>Int addresses</source>
        <translation>Int アドレス</translation>
    </message>
    <message>
        <source>Float addresses</source>
        <translation>Float アドレス</translation>
    </message>
    <message>
        <source>system Bool</source>
        <translation>システム Bool</translation>
    </message>
    <message>
        <source>system Int</source>
        <translation>システム Int</translation>
    </message>
    <message>
        <source>system Float</source>
        <translation>システム Float</translation>
    </message>
    <message>
        <source>system Bool addresses</source>
        <translation>システム Bool アドレス</translation>
    </message>
    <message>
        <source>system Int addresses</source>
        <translation>システム Int アドレス</translation>
    </message>
    <message>
        <source>system Float addresses</source>
        <translation>システム Float アドレス</translation>
    </message>
    <message>
        <source>block</source>
        <translation>ブロック</translation>
    </message>
    <message>
        <source>mapping %1, %2, %3</source>
        <translation>割り当て %1、%2、%3</translation>
    </message>
    <message>
        <source>slave&apos;s IP address</source>
        <translation>スレーブの IP アドレス</translation>
    </message>
    <message>
        <source>slave&apos;s port</source>
        <translation>スレーブのポート</translation>
    </message>
    <message>
        <source>slave&apos;s unit</source>
        <translation>スレーブのユニット</translation>
    </message>
    <message>
        <source>time-out</source>
        <translation>タイムアウト</translation>
    </message>
    <message>
        <source>byte order read</source>
        <translation>読取バイトオーダー</translation>
    </message>
    <message>
        <source>byte order written</source>
        <translation>書込バイトオーダー</translation>
    </message>
    <message>
        <source>keep-alive time</source>
        <translation>キープアライブ時間</translation>
    </message>
    <message>
        <source>slaves</source>
        <translation>スレーブ</translation>
    </message>
    <message>
        <source>disable time-out</source>
        <translation>無効化タイムアウト</translation>
    </message>
    <message>
        <source>enable time-out</source>
        <translation>有効化タイムアウト</translation>
    </message>
    <message>
        <source>MAC ID</source>
        <translation>MAC ID</translation>
    </message>
    <message>
        <source>baud rate</source>
        <translation>通信速度</translation>
    </message>
    <message>
        <source>byte order</source>
        <translation>バイトオーダー</translation>
    </message>
    <message>
        <source>time between scans</source>
        <translation>スキャン間隔</translation>
    </message>
    <message>
        <source>devices</source>
        <translation>デバイス</translation>
    </message>
    <message>
        <source>input bytes</source>
        <translation>入力バイト数</translation>
    </message>
    <message>
        <source>output bytes</source>
        <translation>出力バイト数</translation>
    </message>
    <message>
        <source>vendor</source>
        <translation>ベンダー</translation>
    </message>
    <message>
        <source>product code</source>
        <translation>プロダクトコード</translation>
    </message>
    <message>
        <source>revision</source>
        <translation>リビジョン</translation>
    </message>
    <message>
        <source>configuration flags</source>
        <translation>構成フラグ</translation>
    </message>
    <message>
        <source>status register</source>
        <translation>状態レジスタ</translation>
    </message>
    <message>
        <source>first input register</source>
        <translation>最初の入力レジスタ</translation>
    </message>
    <message>
        <source>first output register</source>
        <translation>最初の出力レジスタ</translation>
    </message>
    <message>
        <source>fixed and dynamic</source>
        <translation>固定かつ動的</translation>
    </message>
    <message>
        <source>dynamic</source>
        <translation>動的</translation>
    </message>
    <message>
        <source>slave %1</source>
        <translation>スレーブ %1</translation>
    </message>
    <message>
        <source>%1, device %2</source>
        <translation>%1、デバイス %2</translation>
    </message>
    <message>
        <source>switch</source>
        <translation>スイッチ</translation>
    </message>
    <message>
        <source>switch that runs</source>
        <translation>動作中のスイッチ</translation>
    </message>
    <message>
        <source>heartbeat</source>
        <translation>ハートビート</translation>
    </message>
    <message>
        <source>heartbeat time-out</source>
        <translation>ハートビートのタイムアウト</translation>
    </message>
    <message>
        <source>PROFIBUS address</source>
        <translation>PROFIBUS アドレス</translation>
    </message>
    <message>
        <source>alarm on a lost connection</source>
        <translation>接続断アラーム</translation>
    </message>
    <message>
        <source>devices of the %1</source>
        <translation>%1 のデバイス</translation>
    </message>
    <message>
        <source>slave module</source>
        <translation>スレーブモジュール</translation>
    </message>
    <message>
        <source>master bus</source>
        <translation>マスタバス</translation>
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
        <translation>出力ビット %1</translation>
    </message>
    <message>
        <source>input bit %1</source>
        <translation>入力ビット %1</translation>
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
        <translation>確認中</translation>
    </message>
    <message>
        <source>outside its settings</source>
        <translation>設定範囲外</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>故障</translation>
    </message>
    <message>
        <source>off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>no</source>
        <translation>いいえ</translation>
    </message>
</context>
<context>
    <name>StatusBox</name>
    <message>
        <source>The last import or export is still coming to its end.
Please try again in a moment.</source>
        <translation>直前のインポートまたはエクスポートがまだ終了していません。
少し待ってからもう一度試してください。</translation>
    </message>
</context>
<context>
    <name>StatusMain</name>
    <message>
        <source>Overview</source>
        <translation>概要</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>所見</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>The controller does not answer: it restarts, or its cable is out. What is shown is what was known last.</source>
        <translation>コントローラが応答しません。再起動中か、ケーブルが外れています。最後に分かっていた内容を表示しています。</translation>
    </message>
    <message>
        <source>Waiting for the controller ...</source>
        <translation>コントローラを待っています ...</translation>
    </message>
    <message numerus="yes">
        <source>Reading the controller&apos;s files: %n to come</source>
        <translation>
            <numerusform>コントローラのファイルを読取中：残り %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Read from the controller %1</source>
        <translation>コントローラから読取 %1</translation>
    </message>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>変更</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>サポート</translation>
    </message>
</context>
<context>
    <name>Subjects</name>
    <message>
        <source>Heartbeat</source>
        <translation>ハートビート</translation>
    </message>
    <message>
        <source>ProfiSAFE</source>
        <translation>PROFIsafe</translation>
    </message>
    <message>
        <source>Controller: files and ports</source>
        <translation>コントローラ：ファイルとポート</translation>
    </message>
</context>
<context>
    <name>SupportPage</name>
    <message>
        <source>The support bundle %1 is on the USB drive.</source>
        <translation>サポートバンドル %1 を USB メモリに書き込みました。</translation>
    </message>
    <message>
        <source>The controller does not give %1. Nothing was written to the drive.</source>
        <translation>コントローラから %1 を取得できません。USB メモリには何も書き込んでいません。</translation>
    </message>
    <message>
        <source>%1 is larger than any configuration file. Nothing was written to the drive.</source>
        <translation>%1 はどの構成ファイルよりも大きいです。USB メモリには何も書き込んでいません。</translation>
    </message>
    <message>
        <source>The USB drive was pulled out at %1. What is on it is not complete.</source>
        <translation>%1 の書込中に USB メモリが取り外されました。内容は不完全です。</translation>
    </message>
    <message>
        <source>The USB drive does not take %1: it is full, write-protected or damaged.
What is on it is not complete.</source>
        <translation>USB メモリに %1 を書き込めません。満杯か、書込禁止か、破損しています。
内容は不完全です。</translation>
    </message>
    <message>
        <source>The pendant&apos;s own disk does not take %1. What is on the drive is not complete.</source>
        <translation>ペンダントのディスクに %1 を書き込めません。USB メモリの内容は不完全です。</translation>
    </message>
    <message>
        <source>Write to the USB drive</source>
        <translation>USB メモリに書き込む</translation>
    </message>
    <message>
        <source>Support bundle</source>
        <translation>サポートバンドル</translation>
    </message>
    <message>
        <source>Writes onto a USB drive: all configuration files of the controller, as an export does, and beside them a report with the findings, the history and checksums. Nothing is changed on the controller.</source>
        <translation>USB メモリに書き込みます：エクスポートと同じコントローラの全構成ファイルと、所見、履歴、チェックサムを含むレポート。コントローラは変更しません。</translation>
    </message>
    <message>
        <source>No device found!</source>
        <translation>デバイスが見つかりません。</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
</context>
</TS>
