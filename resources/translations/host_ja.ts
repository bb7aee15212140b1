<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>ApplicationInfo</name>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 を読み取れません。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1 does not tell class, library and name of an application.</source>
        <translation>%1 にアプリケーションのクラス、ライブラリ、名前が記述されていません。</translation>
    </message>
</context>
<context>
    <name>ApplicationSlot</name>
    <message>
        <source>The application could not be loaded: %1</source>
        <translation>アプリケーションを読み込めませんでした：%1</translation>
    </message>
    <message>
        <source>%1 is not an application of this pendant: the function %2 is missing.</source>
        <translation>%1 はこのペンダントのアプリケーションではありません。関数 %2 がありません。</translation>
    </message>
    <message>
        <source>The application did not start.</source>
        <translation>アプリケーションが起動しませんでした。</translation>
    </message>
</context>
<context>
    <name>ChoiceDialog</name>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>FolderLock</name>
    <message>
        <source>Another pendant works with the folder %1: process %2 on %3. Close it, or name other folders with --controller and --workdir.</source>
        <translation>別のペンダントがフォルダ %1 を使用しています（%3 のプロセス %2）。それを終了するか、--controller と --workdir で別のフォルダを指定してください。</translation>
    </message>
</context>
<context>
    <name>HomeScreen</name>
    <message>
        <source>Applications</source>
        <translation>アプリケーション</translation>
    </message>
    <message>
        <source>↻  Close and reopen the pendant</source>
        <translation>↻  ペンダントを閉じて再起動</translation>
    </message>
    <message>
        <source>%1
Controller is restarting</source>
        <translation>%1
コントローラ再起動中</translation>
    </message>
</context>
<context>
    <name>LanguageChange</name>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>The application is at work. Change the language when it is done.</source>
        <translation>アプリケーションが処理中です。終了してから言語を変更してください。</translation>
    </message>
    <message>
        <source>What was entered and is not saved will be lost.
Change the language?</source>
        <translation>入力して保存していない内容は失われます。
言語を変更しますか？</translation>
    </message>
</context>
<context>
    <name>LogInDialog</name>
    <message>
        <source>nobody</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>operator</source>
        <translation>操作者</translation>
    </message>
    <message>
        <source>shift</source>
        <translation>職長</translation>
    </message>
    <message>
        <source>technician</source>
        <translation>保全員</translation>
    </message>
    <message>
        <source>engineer</source>
        <translation>技術者</translation>
    </message>
    <message>
        <source>service</source>
        <translation>サービス</translation>
    </message>
    <message>
        <source>Log in: choose the user level</source>
        <translation>ログイン：ユーザーレベルの選択</translation>
    </message>
</context>
<context>
    <name>MsgBox</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
</context>
<context>
    <name>NumericEntry</name>
    <message>
        <source>Nothing was entered.</source>
        <translation>入力がありません。</translation>
    </message>
    <message>
        <source>An address is four numbers from 0 to 255 with points between.</source>
        <translation>アドレスは 0～255 の数字 4 つをピリオドで区切って入力します。</translation>
    </message>
    <message>
        <source>This is not a number.</source>
        <translation>数値ではありません。</translation>
    </message>
    <message>
        <source>Too small: at least %1.</source>
        <translation>小さすぎます。最小値は %1 です。</translation>
    </message>
    <message>
        <source>Too large: at most %1.</source>
        <translation>大きすぎます。最大値は %1 です。</translation>
    </message>
    <message>
        <source>0.0.0.0 to 255.255.255.255</source>
        <translation>0.0.0.0～255.255.255.255</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1～%2</translation>
    </message>
</context>
<context>
    <name>NumericKeyboard</name>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Next field</source>
        <translation>次の項目</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>クリア</translation>
    </message>
    <message>
        <source>%1, in steps of %2</source>
        <translation>%1、%2 刻み</translation>
    </message>
</context>
<context>
    <name>PendantWindow</name>
    <message>
        <source>Pendant</source>
        <translation>ペンダント</translation>
    </message>
    <message>
        <source>↻
Restarting the pendant ...</source>
        <translation>↻
ペンダントを再起動しています ...</translation>
    </message>
    <message>
        <source>%1 was closed: user level %2 may not use it. Log in with a higher level and open it again.</source>
        <translation>%1 を閉じました。ユーザーレベル %2 では使用できません。上位のレベルでログインして開き直してください。</translation>
    </message>
</context>
<context>
    <name>ProgressBarWidget</name>
    <message>
        <source>Loading</source>
        <translation>読み込み中</translation>
    </message>
</context>
<context>
    <name>Screen</name>
    <message>
        <source>There is no display. --tour needs none.</source>
        <translation>画面がありません。--tour は画面なしで動作します。</translation>
    </message>
    <message>
        <source>The display is Wayland&apos;s, and Qt&apos;s part for it is missing (package qtwayland5).</source>
        <translation>画面は Wayland ですが、対応する Qt のプラグインがありません（パッケージ qtwayland5）。</translation>
    </message>
</context>
<context>
    <name>StatusBar</name>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Level %1</source>
        <translation>レベル %1</translation>
    </message>
</context>
<context>
    <name>StatusItem</name>
    <message>
        <source>running</source>
        <translation>運転中</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>停止中</translation>
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
        <source>up</source>
        <translation>稼働中</translation>
    </message>
    <message>
        <source>restarting</source>
        <translation>再起動中</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>未接続</translation>
    </message>
    <message>
        <source>drive in</source>
        <translation>挿入済</translation>
    </message>
    <message>
        <source>no drive</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>プログラム</translation>
    </message>
    <message>
        <source>Servo</source>
        <translation>サーボ</translation>
    </message>
    <message>
        <source>Controller</source>
        <translation>コントローラ</translation>
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
        <translation>フォルダ %1 を作成できません。</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written to.</source>
        <translation>フォルダ %1 に書き込めません。</translation>
    </message>
    <message>
        <source>The folder %1 cannot be entered.</source>
        <translation>フォルダ %1 に移動できません。</translation>
    </message>
</context>
</TS>
