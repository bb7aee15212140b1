<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ApplicationInfo</name>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 does not tell class, library and name of an application.</source>
        <translation>%1 nennt nicht Klasse, Bibliothek und Namen einer Anwendung.</translation>
    </message>
</context>
<context>
    <name>ApplicationSlot</name>
    <message>
        <source>The application could not be loaded: %1</source>
        <translation>Die Anwendung konnte nicht geladen werden: %1</translation>
    </message>
    <message>
        <source>%1 is not an application of this pendant: the function %2 is missing.</source>
        <translation>%1 ist keine Anwendung dieses Bediengeräts: Die Funktion %2 fehlt.</translation>
    </message>
    <message>
        <source>The application did not start.</source>
        <translation>Die Anwendung ist nicht gestartet.</translation>
    </message>
</context>
<context>
    <name>ChoiceDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>FolderLock</name>
    <message>
        <source>Another pendant works with the folder %1: process %2 on %3. Close it, or name other folders with --controller and --workdir.</source>
        <translation>Ein anderes Bediengerät arbeitet mit dem Ordner %1: Prozess %2 auf %3. Beenden Sie es, oder nennen Sie mit --controller und --workdir andere Ordner.</translation>
    </message>
</context>
<context>
    <name>HomeScreen</name>
    <message>
        <source>Applications</source>
        <translation>Anwendungen</translation>
    </message>
    <message>
        <source>↻  Close and reopen the pendant</source>
        <translation>↻  Bediengerät schließen und neu öffnen</translation>
    </message>
    <message>
        <source>%1
Controller is restarting</source>
        <translation>%1
Steuerung startet neu</translation>
    </message>
</context>
<context>
    <name>LanguageChange</name>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>The application is at work. Change the language when it is done.</source>
        <translation>Die Anwendung arbeitet noch. Wechseln Sie die Sprache, wenn sie fertig ist.</translation>
    </message>
    <message>
        <source>What was entered and is not saved will be lost.
Change the language?</source>
        <translation>Was eingegeben und nicht gespeichert ist, geht verloren.
Sprache wechseln?</translation>
    </message>
</context>
<context>
    <name>LogInDialog</name>
    <message>
        <source>nobody</source>
        <translation>niemand</translation>
    </message>
    <message>
        <source>operator</source>
        <translation>Bediener</translation>
    </message>
    <message>
        <source>shift</source>
        <translation>Schichtführer</translation>
    </message>
    <message>
        <source>technician</source>
        <translation>Techniker</translation>
    </message>
    <message>
        <source>engineer</source>
        <translation>Ingenieur</translation>
    </message>
    <message>
        <source>service</source>
        <translation>Service</translation>
    </message>
    <message>
        <source>Log in: choose the user level</source>
        <translation>Anmelden: Benutzerebene wählen</translation>
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
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
</context>
<context>
    <name>NumericEntry</name>
    <message>
        <source>Nothing was entered.</source>
        <translation>Es wurde nichts eingegeben.</translation>
    </message>
    <message>
        <source>An address is four numbers from 0 to 255 with points between.</source>
        <translation>Eine Adresse besteht aus vier Zahlen von 0 bis 255 mit Punkten dazwischen.</translation>
    </message>
    <message>
        <source>This is not a number.</source>
        <translation>Das ist keine Zahl.</translation>
    </message>
    <message>
        <source>Too small: at least %1.</source>
        <translation>Zu klein: mindestens %1.</translation>
    </message>
    <message>
        <source>Too large: at most %1.</source>
        <translation>Zu groß: höchstens %1.</translation>
    </message>
    <message>
        <source>0.0.0.0 to 255.255.255.255</source>
        <translation>0.0.0.0 bis 255.255.255.255</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
</context>
<context>
    <name>NumericKeyboard</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Next field</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>%1, in steps of %2</source>
        <translation>%1, in Schritten von %2</translation>
    </message>
</context>
<context>
    <name>PendantWindow</name>
    <message>
        <source>Pendant</source>
        <translation>Bediengerät</translation>
    </message>
    <message>
        <source>↻
Restarting the pendant ...</source>
        <translation>↻
Das Bediengerät startet neu ...</translation>
    </message>
    <message>
        <source>%1 was closed: user level %2 may not use it. Log in with a higher level and open it again.</source>
        <translation>%1 wurde geschlossen: Benutzerebene %2 darf es nicht verwenden. Melden Sie sich auf einer höheren Ebene an und öffnen Sie es erneut.</translation>
    </message>
</context>
<context>
    <name>ProgressBarWidget</name>
    <message>
        <source>Loading</source>
        <translation>Laden</translation>
    </message>
</context>
<context>
    <name>Screen</name>
    <message>
        <source>There is no display. --tour needs none.</source>
        <translation>Es gibt keinen Bildschirm. --tour braucht keinen.</translation>
    </message>
    <message>
        <source>The display is Wayland&apos;s, and Qt&apos;s part for it is missing (package qtwayland5).</source>
        <translation>Der Bildschirm ist der von Wayland, und Qts Teil dafür fehlt (Paket qtwayland5).</translation>
    </message>
</context>
<context>
    <name>StatusBar</name>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Level %1</source>
        <translation>Ebene %1</translation>
    </message>
</context>
<context>
    <name>StatusItem</name>
    <message>
        <source>running</source>
        <translation>läuft</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>steht</translation>
    </message>
    <message>
        <source>on</source>
        <translation>ein</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>up</source>
        <translation>bereit</translation>
    </message>
    <message>
        <source>restarting</source>
        <translation>Neustart</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>nicht verbunden</translation>
    </message>
    <message>
        <source>drive in</source>
        <translation>gesteckt</translation>
    </message>
    <message>
        <source>no drive</source>
        <translation>kein Laufwerk</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>Servo</source>
        <translation>Servo</translation>
    </message>
    <message>
        <source>Controller</source>
        <translation>Steuerung</translation>
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
        <translation>Der Ordner %1 kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written to.</source>
        <translation>In den Ordner %1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be entered.</source>
        <translation>Der Ordner %1 kann nicht geöffnet werden.</translation>
    </message>
</context>
</TS>
