<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ChangesPage</name>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Import undone</source>
        <translation>Import rückgängig gemacht</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Zurücklegen</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... und %1 weitere</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n Datei</numerusform>
            <numerusform>%n Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>The controller holds the former files already.</source>
        <translation>Die Steuerung hat die früheren Dateien schon.</translation>
    </message>
    <message>
        <source>The former version of %1 can no longer be read.</source>
        <translation>Die frühere Fassung von %1 kann nicht mehr gelesen werden.</translation>
    </message>
    <message>
        <source>The controller does not give %1.</source>
        <translation>Die Steuerung gibt %1 nicht heraus.</translation>
    </message>
    <message>
        <source>%1 was changed since: it stays as it is.</source>
        <translation>%1 wurde seither geändert und bleibt, wie es ist.</translation>
    </message>
    <message>
        <source>Please turn off the servo first!</source>
        <translation>Schalten Sie zuerst den Servo aus!</translation>
    </message>
    <message>
        <source>The pendant cannot keep the present version of %1.</source>
        <translation>Das Bediengerät kann die jetzige Fassung von %1 nicht aufbewahren.</translation>
    </message>
    <message>
        <source>%1 did not arrive as it was sent.</source>
        <translation>%1 ist nicht angekommen, wie es gesendet wurde.</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Änderungen</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>What was changed</source>
        <translation>Was geändert wurde</translation>
    </message>
    <message>
        <source>This pendant has not changed any file so far.</source>
        <translation>Dieses Bediengerät hat noch keine Datei geändert.</translation>
    </message>
    <message>
        <source>Touch a change to choose it.</source>
        <translation>Berühren Sie eine Änderung, um sie zu wählen.</translation>
    </message>
    <message>
        <source>Chosen: %1, %2</source>
        <translation>Gewählt: %1, %2</translation>
    </message>
    <message>
        <source>%1: it cannot be put back, as not all of it was kept or sent.</source>
        <translation>%1: kann nicht zurückgelegt werden, weil nicht alles aufbewahrt oder gesendet wurde.</translation>
    </message>
    <message>
        <source>Put these files back as they were before %1?
%2</source>
        <translation>Diese Dateien so zurücklegen, wie sie vor %1 waren?
%2</translation>
    </message>
    <message>
        <source>Nothing was put back.</source>
        <translation>Es wurde nichts zurückgelegt.</translation>
    </message>
    <message>
        <source>These files were put back before:
%1</source>
        <translation>Diese Dateien wurden zuvor zurückgelegt:
%1</translation>
    </message>
    <message>
        <source>Save successfully.</source>
        <translation>Gespeichert.</translation>
    </message>
    <message>
        <source>Save successfully, Are you sure to restart robot to make it effect?</source>
        <translation>Gespeichert. Den Roboter jetzt neu starten, damit es wirksam wird?</translation>
    </message>
</context>
<context>
    <name>DeviceNetCodes</name>
    <message>
        <source>no fault</source>
        <translation>kein Fehler</translation>
    </message>
    <message>
        <source>the network has no link</source>
        <translation>das Netz hat keine Verbindung</translation>
    </message>
    <message>
        <source>no answer on the network</source>
        <translation>keine Antwort im Netz</translation>
    </message>
    <message>
        <source>another device has its MAC ID</source>
        <translation>ein anderes Gerät hat seine MAC ID</translation>
    </message>
    <message>
        <source>its MAC ID is none from 1 to 63</source>
        <translation>seine MAC ID ist keine von 1 bis 63</translation>
    </message>
    <message>
        <source>code %1 of the master&apos;s manual</source>
        <translation>Code %1 im Handbuch des Masters</translation>
    </message>
</context>
<context>
    <name>FileChanges</name>
    <message>
        <source>No setting was changed.</source>
        <translation>Es wurde keine Einstellung geändert.</translation>
    </message>
    <message>
        <source>The transfer failed; what it left behind is not known.</source>
        <translation>Die Übertragung ist fehlgeschlagen; was sie hinterlassen hat, ist nicht bekannt.</translation>
    </message>
    <message>
        <source>The former file could not be kept.</source>
        <translation>Die frühere Datei konnte nicht aufbewahrt werden.</translation>
    </message>
    <message>
        <source>What was sent could not be read back.</source>
        <translation>Was gesendet wurde, konnte nicht zurückgelesen werden.</translation>
    </message>
    <message>
        <source>What was kept can no longer be read.</source>
        <translation>Was aufbewahrt wurde, kann nicht mehr gelesen werden.</translation>
    </message>
</context>
<context>
    <name>Findings</name>
    <message>
        <source>The MAC ID %1 stands for two devices of the scan list.</source>
        <translation>Die MAC ID %1 steht in der Scanliste für zwei Geräte.</translation>
    </message>
    <message>
        <source>the devices</source>
        <translation>die Geräte</translation>
    </message>
    <message>
        <source>Give each device a MAC ID of its own on the DeviceNet master page.</source>
        <translation>Geben Sie auf der Seite des DeviceNet-Masters jedem Gerät eine eigene MAC ID.</translation>
    </message>
    <message>
        <source>The device %2 has the MAC ID %1, which is the master&apos;s own.</source>
        <translation>Das Gerät %2 hat die MAC ID %1, die der Master selbst hat.</translation>
    </message>
    <message>
        <source>the device and WS_ID</source>
        <translation>Gerät und WS_ID</translation>
    </message>
    <message>
        <source>Change the device&apos;s MAC ID or the WS_ID on the DeviceNet master page.</source>
        <translation>Ändern Sie auf der Seite des DeviceNet-Masters die MAC ID des Geräts oder die WS_ID.</translation>
    </message>
    <message>
        <source>The MAC ID %1 of the device %2 is outside 1 to 63.</source>
        <translation>Die MAC ID %1 des Geräts %2 liegt außerhalb von 1 bis 63.</translation>
    </message>
    <message>
        <source>the MAC ID</source>
        <translation>die MAC ID</translation>
    </message>
    <message>
        <source>Enter the MAC ID that is set on the device.</source>
        <translation>Geben Sie die MAC ID ein, die am Gerät eingestellt ist.</translation>
    </message>
    <message>
        <source>The MAC ID %1 of the DeviceNet slave is odd.</source>
        <translation>Die MAC ID %1 des DeviceNet-Slaves ist ungerade.</translation>
    </message>
    <message>
        <source>Enter an even MAC ID, 2 to 62, on the DeviceNet slave page.</source>
        <translation>Geben Sie auf der Seite des DeviceNet-Slaves eine gerade MAC ID von 2 bis 62 ein.</translation>
    </message>
    <message>
        <source>The MAC ID &quot;%1&quot; of the DeviceNet slave is no number from 2 to 62.</source>
        <translation>Die MAC ID „%1“ des DeviceNet-Slaves ist keine Zahl von 2 bis 62.</translation>
    </message>
    <message>
        <source>The baud rate %2 of the %1 is none of 125, 250 and 500 kbps.</source>
        <translation>Die Baudrate %2 (%1) ist keine von 125, 250 und 500 kbit/s.</translation>
    </message>
    <message>
        <source>the baud rate</source>
        <translation>die Baudrate</translation>
    </message>
    <message>
        <source>Choose the rate of the network on the page of the role.</source>
        <translation>Wählen Sie auf der Seite der Rolle die Baudrate des Netzes.</translation>
    </message>
    <message>
        <source>The devices send %1 bytes, but only %2 are mapped.</source>
        <translation>Die Geräte senden %1 Bytes, aber nur %2 sind zugeordnet.</translation>
    </message>
    <message>
        <source>the sum of the inputs and the mapped Bools</source>
        <translation>die Summe der Eingänge und die zugeordneten Bool</translation>
    </message>
    <message>
        <source>Map more read-only Bools of the DeviceNet master, or make the devices&apos; inputs smaller.</source>
        <translation>Ordnen Sie dem DeviceNet-Master mehr Bool „Nur Lesen“ zu, oder verkleinern Sie die Eingänge der Geräte.</translation>
    </message>
    <message>
        <source>The devices take %1 bytes, but only %2 are mapped.</source>
        <translation>Die Geräte nehmen %1 Bytes, aber nur %2 sind zugeordnet.</translation>
    </message>
    <message>
        <source>the sum of the outputs and the mapped Bools</source>
        <translation>die Summe der Ausgänge und die zugeordneten Bool</translation>
    </message>
    <message>
        <source>Map more write-only Bools of the DeviceNet master, or make the devices&apos; outputs smaller.</source>
        <translation>Ordnen Sie dem DeviceNet-Master mehr Bool „Nur Schreiben“ zu, oder verkleinern Sie die Ausgänge der Geräte.</translation>
    </message>
    <message>
        <source>The registers of the device %1 end at %2, beyond the area, which ends at %3.</source>
        <translation>Die Register des Geräts %1 enden bei %2, hinter dem Ende des Bereichs bei %3.</translation>
    </message>
    <message>
        <source>the block and the area</source>
        <translation>Block und Bereich</translation>
    </message>
    <message>
        <source>Save the scan list again on the DeviceNet master page: it lays the registers out anew.</source>
        <translation>Speichern Sie die Scanliste auf der Seite des DeviceNet-Masters noch einmal: Dabei werden die Register neu verteilt.</translation>
    </message>
    <message>
        <source>The devices %1 and %2 share registers.</source>
        <translation>Die Geräte %1 und %2 teilen sich Register.</translation>
    </message>
    <message>
        <source>the two blocks</source>
        <translation>die beiden Blöcke</translation>
    </message>
    <message>
        <source>The device %1 has neither inputs nor outputs.</source>
        <translation>Das Gerät %1 hat weder Eingänge noch Ausgänge.</translation>
    </message>
    <message>
        <source>its bytes</source>
        <translation>seine Bytes</translation>
    </message>
    <message>
        <source>Enter its sizes from its data sheet, or delete it.</source>
        <translation>Geben Sie die Größen aus dem Datenblatt ein, oder löschen Sie es.</translation>
    </message>
    <message>
        <source>The device %1 has %2 bytes in one direction; the page takes up to 64.</source>
        <translation>Das Gerät %1 hat in einer Richtung %2 Bytes; die Seite nimmt höchstens 64.</translation>
    </message>
    <message>
        <source>Check the size against the device&apos;s data sheet.</source>
        <translation>Vergleichen Sie die Größe mit dem Datenblatt des Geräts.</translation>
    </message>
    <message>
        <source>The DeviceNet master is on, but its scan list is empty.</source>
        <translation>Der DeviceNet-Master ist eingeschaltet, aber seine Scanliste ist leer.</translation>
    </message>
    <message>
        <source>the number of devices</source>
        <translation>die Zahl der Geräte</translation>
    </message>
    <message>
        <source>Add the devices on the DeviceNet master page, or switch the role off.</source>
        <translation>Fügen Sie auf der Seite des DeviceNet-Masters die Geräte hinzu, oder schalten Sie die Rolle aus.</translation>
    </message>
    <message>
        <source>%1: %2 %3 are mapped, and at most %4 may be.</source>
        <translation>%1: %2 %3 sind zugeordnet, höchstens %4 dürfen es sein.</translation>
    </message>
    <message>
        <source>the quantity</source>
        <translation>die Anzahl</translation>
    </message>
    <message>
        <source>Enter a smaller quantity on the I/O mapping page.</source>
        <translation>Geben Sie auf der Seite der Konfiguration eine kleinere Anzahl ein.</translation>
    </message>
    <message>
        <source>%1: %2 Bools are no multiple of %3.</source>
        <translation>%1: %2 Bool sind kein Vielfaches von %3.</translation>
    </message>
    <message>
        <source>Enter the quantity again on the I/O mapping page: it is rounded up.</source>
        <translation>Geben Sie die Anzahl auf der Seite der Konfiguration noch einmal ein: Sie wird aufgerundet.</translation>
    </message>
    <message>
        <source>%1: %2 bytes are mapped, and %3 to %4 may be.</source>
        <translation>%1: %2 Bytes sind zugeordnet, %3 bis %4 dürfen es sein.</translation>
    </message>
    <message>
        <source>the sum of the bytes</source>
        <translation>die Summe der Bytes</translation>
    </message>
    <message>
        <source>Change quantities on the I/O mapping page until the sum is in the range.</source>
        <translation>Ändern Sie auf der Seite der Konfiguration Anzahlen, bis die Summe im Bereich liegt.</translation>
    </message>
    <message>
        <source>%1: Bool and Int take %2 bytes, and %3 to %4 may be.</source>
        <translation>%1: Bool und Int nehmen %2 Bytes, %3 bis %4 dürfen es sein.</translation>
    </message>
    <message>
        <source>%1: %2 bytes are no multiple of %3.</source>
        <translation>%1: %2 Bytes sind kein Vielfaches von %3.</translation>
    </message>
    <message>
        <source>the sum of the bytes, the system&apos;s among them</source>
        <translation>die Summe der Bytes, einschließlich derer des Systems</translation>
    </message>
    <message>
        <source>Change quantities on the I/O mapping page until the sum is a multiple.</source>
        <translation>Ändern Sie auf der Seite der Konfiguration Anzahlen, bis die Summe ein Vielfaches ist.</translation>
    </message>
    <message>
        <source>%1: %2 and %3 lie on the same addresses.</source>
        <translation>%1: %2 und %3 liegen auf denselben Adressen.</translation>
    </message>
    <message>
        <source>the addresses of both</source>
        <translation>die Adressen der beiden</translation>
    </message>
    <message>
        <source>Enter one of the quantities again on the I/O mapping page: the area is laid out anew.</source>
        <translation>Geben Sie auf der Seite der Konfiguration eine der Anzahlen noch einmal ein: Der Bereich wird neu verteilt.</translation>
    </message>
    <message>
        <source>%1: %2 ends at %4, before it starts at %3.</source>
        <translation>%1: %2 endet bei %4, bevor es bei %3 beginnt.</translation>
    </message>
    <message>
        <source>the addresses</source>
        <translation>die Adressen</translation>
    </message>
    <message>
        <source>Enter the quantity again on the I/O mapping page: the area is laid out anew.</source>
        <translation>Geben Sie die Anzahl auf der Seite der Konfiguration noch einmal ein: Der Bereich wird neu verteilt.</translation>
    </message>
    <message>
        <source>%1: the addresses of %2 hold another number of variables than its quantity says.</source>
        <translation>%1: Die Adressen von %2 fassen eine andere Zahl von Variablen, als die Anzahl sagt.</translation>
    </message>
    <message>
        <source>quantity and addresses</source>
        <translation>Anzahl und Adressen</translation>
    </message>
    <message>
        <source>The blocks %2 and %3 of the %1 lie on the same registers.</source>
        <translation>Die Blöcke %2 und %3 (%1) liegen auf denselben Registern.</translation>
    </message>
    <message>
        <source>the registers of both</source>
        <translation>die Register der beiden</translation>
    </message>
    <message>
        <source>Move one of them on the I/O mapping page.</source>
        <translation>Verschieben Sie auf der Seite der Konfiguration einen davon.</translation>
    </message>
    <message>
        <source>%1: the registers %2 to %3 are outside %4 to %5.</source>
        <translation>%1: Die Register %2 bis %3 liegen außerhalb von %4 bis %5.</translation>
    </message>
    <message>
        <source>the registers</source>
        <translation>die Register</translation>
    </message>
    <message>
        <source>Enter another start address on the I/O mapping page.</source>
        <translation>Geben Sie auf der Seite der Konfiguration eine andere Startadresse ein.</translation>
    </message>
    <message>
        <source>Variables are mapped for the %1, which is off.</source>
        <translation>Für eine ausgeschaltete Rolle sind Variablen zugeordnet: %1.</translation>
    </message>
    <message>
        <source>the bytes that are mapped</source>
        <translation>die zugeordneten Bytes</translation>
    </message>
    <message>
        <source>Nothing, unless the role should be on.</source>
        <translation>Nichts, es sei denn, die Rolle soll eingeschaltet sein.</translation>
    </message>
    <message>
        <source>The %1 is on, but nothing is mapped for it in the mode that runs.</source>
        <translation>%1 ist eingeschaltet, aber in der Betriebsart, die läuft, ist nichts zugeordnet.</translation>
    </message>
    <message>
        <source>the mode</source>
        <translation>die Betriebsart</translation>
    </message>
    <message>
        <source>Enter quantities on the I/O mapping page, or switch the role off.</source>
        <translation>Geben Sie auf der Seite der Konfiguration Anzahlen ein, oder schalten Sie die Rolle aus.</translation>
    </message>
    <message>
        <source>The byte order of the %1 is another one in its free variant: it changes when FreeBus is switched on.</source>
        <translation>Die Byte-Reihenfolge ist in der freien Variante eine andere (%1): Sie ändert sich, wenn FreeBus eingeschaltet wird.</translation>
    </message>
    <message>
        <source>the byte order in both files</source>
        <translation>die Byte-Reihenfolge in beiden Dateien</translation>
    </message>
    <message>
        <source>Save the page of the role once more: it writes all variants.</source>
        <translation>Speichern Sie die Seite der Rolle noch einmal: Dabei werden alle Varianten geschrieben.</translation>
    </message>
    <message>
        <source>The byte order of the %1 is another one in its fixed variant: it changes when FreeBus is switched off.</source>
        <translation>Die Byte-Reihenfolge ist in der festen Variante eine andere (%1): Sie ändert sich, wenn FreeBus ausgeschaltet wird.</translation>
    </message>
    <message>
        <source>The byte order &quot;%2&quot; of the %1 is not one of the four that the driver knows.</source>
        <translation>Die Byte-Reihenfolge „%2“ (%1) ist keine der vier, die der Treiber kennt.</translation>
    </message>
    <message>
        <source>the byte order</source>
        <translation>die Byte-Reihenfolge</translation>
    </message>
    <message>
        <source>Choose the byte order on the page of the role, and save.</source>
        <translation>Wählen Sie auf der Seite der Rolle die Byte-Reihenfolge und speichern Sie.</translation>
    </message>
    <message>
        <source>The connection of the %1 is watched, but the role is off: its loss will be reported.</source>
        <translation>Die Verbindung wird überwacht, aber die Rolle ist ausgeschaltet (%1): Ihr Verlust wird gemeldet werden.</translation>
    </message>
    <message>
        <source>the watch and the role</source>
        <translation>Überwachung und Rolle</translation>
    </message>
    <message>
        <source>Switch the watch off on the heartbeat page, or the role on.</source>
        <translation>Schalten Sie auf der Seite der Heartbeat-Überwachung die Überwachung aus, oder die Rolle ein.</translation>
    </message>
    <message>
        <source>The connection of the %1 is watched with the time 0: any moment without a link is a loss.</source>
        <translation>Die Verbindung wird mit der Zeit 0 überwacht (%1): Jeder Augenblick ohne Verbindung ist ein Verlust.</translation>
    </message>
    <message>
        <source>the time-out</source>
        <translation>die Wartezeit</translation>
    </message>
    <message>
        <source>Enter a time-out on the heartbeat page.</source>
        <translation>Geben Sie auf der Seite der Heartbeat-Überwachung eine Zeit ein.</translation>
    </message>
    <message>
        <source>The watch of the %1 ends after %2 s, sooner than a scan of its devices takes (%3 s).</source>
        <translation>Die Überwachung (%1) endet nach %2 s, früher als ein Durchlauf der Geräte dauert (%3 s).</translation>
    </message>
    <message>
        <source>the time-out and the scan time</source>
        <translation>Wartezeit und Dauer eines Durchlaufs</translation>
    </message>
    <message>
        <source>Enter a longer time-out on the heartbeat page.</source>
        <translation>Geben Sie auf der Seite der Heartbeat-Überwachung eine längere Zeit ein.</translation>
    </message>
    <message>
        <source>The watch of the %1 ends after %2 s, sooner than its own time-out (%3 s): a slow answer is reported as a loss.</source>
        <translation>Die Überwachung (%1) endet nach %2 s, früher als die eigene Wartezeit (%3 s): Eine langsame Antwort wird als Verlust gemeldet.</translation>
    </message>
    <message>
        <source>the two time-outs</source>
        <translation>die beiden Wartezeiten</translation>
    </message>
    <message>
        <source>Enter a longer time-out on the heartbeat page, or a shorter one on the page of the role.</source>
        <translation>Geben Sie auf der Seite der Heartbeat-Überwachung eine längere Zeit ein oder auf der Seite der Rolle eine kürzere.</translation>
    </message>
    <message>
        <source>The connection of the %1 is not watched: its loss is not reported.</source>
        <translation>Die Verbindung wird nicht überwacht (%1): Ihr Verlust wird nicht gemeldet.</translation>
    </message>
    <message>
        <source>the watch</source>
        <translation>die Überwachung</translation>
    </message>
    <message>
        <source>Switch the watch on on the heartbeat page where a loss must stop the robot.</source>
        <translation>Schalten Sie auf der Seite der Heartbeat-Überwachung die Überwachung ein, wo ein Verlust den Roboter anhalten muss.</translation>
    </message>
    <message>
        <source>The time-out of the watch of the %1 is no time.</source>
        <translation>Die Wartezeit der Überwachung ist keine Zeit (%1).</translation>
    </message>
    <message>
        <source>%1 of the %2 is %3, outside %4 to %5.</source>
        <translation>%1 (%2) ist %3, außerhalb von %4 bis %5.</translation>
    </message>
    <message>
        <source>the value</source>
        <translation>der Wert</translation>
    </message>
    <message>
        <source>Enter a value in the range on the page of the role.</source>
        <translation>Geben Sie auf der Seite der Rolle einen Wert im Bereich ein.</translation>
    </message>
    <message>
        <source>%1 of the %2 is &quot;%3&quot;, which is no number.</source>
        <translation>%1 (%2) ist „%3“ und keine Zahl.</translation>
    </message>
    <message>
        <source>Enter a number on the page of the role.</source>
        <translation>Geben Sie auf der Seite der Rolle eine Zahl ein.</translation>
    </message>
    <message>
        <source>The %1 is to serve %2 slaves; 0 to 9 are possible.</source>
        <translation>%1 soll %2 Slaves bedienen; 0 bis 9 sind möglich.</translation>
    </message>
    <message>
        <source>the slave count</source>
        <translation>die Anzahl der Slaves</translation>
    </message>
    <message>
        <source>Enter the number of slaves on the page of the role.</source>
        <translation>Geben Sie auf der Seite der Rolle die Anzahl der Slaves ein.</translation>
    </message>
    <message>
        <source>The slave %2 of the %1 is both fixed and dynamic.</source>
        <translation>Der Slave %2 (%1) ist zugleich fest und dynamisch.</translation>
    </message>
    <message>
        <source>the two flags</source>
        <translation>die beiden Häkchen</translation>
    </message>
    <message>
        <source>Clear one of the two check boxes on the page of the role.</source>
        <translation>Löschen Sie auf der Seite der Rolle eines der beiden Häkchen.</translation>
    </message>
    <message>
        <source>The slave %2 of the %1 is marked, but only %3 are served.</source>
        <translation>Der Slave %2 (%1) ist angekreuzt, aber nur %3 werden bedient.</translation>
    </message>
    <message>
        <source>the flag and the slave count</source>
        <translation>Häkchen und Anzahl der Slaves</translation>
    </message>
    <message>
        <source>Enter a higher number of slaves on the page of the role, or clear the mark.</source>
        <translation>Geben Sie auf der Seite der Rolle eine größere Anzahl ein, oder löschen Sie das Häkchen.</translation>
    </message>
    <message>
        <source>The link of the %1 is down, and its settings are consistent: the cable or the partner.</source>
        <translation>Die Verbindung fehlt, und die Einstellungen passen zusammen (%1): Es liegt am Kabel oder an der Gegenseite.</translation>
    </message>
    <message>
        <source>the link</source>
        <translation>die Verbindung</translation>
    </message>
    <message>
        <source>Look at the link light of the connector: dark, it is the cable or the partner&apos;s power; lit, it is the partner&apos;s configuration.</source>
        <translation>Sehen Sie auf das Licht am Stecker: Dunkel liegt es am Kabel oder am Strom der Gegenseite, hell an ihrer Konfiguration.</translation>
    </message>
    <message>
        <source>The %1 needs a fieldbus module in the slave slot, and none is found.</source>
        <translation>Es fehlt ein Feldbusmodul im Slave-Steckplatz (%1).</translation>
    </message>
    <message>
        <source>the module&apos;s code</source>
        <translation>der Code des Moduls</translation>
    </message>
    <message>
        <source>Switch the controller off and check that the module is in its slot.</source>
        <translation>Schalten Sie die Steuerung aus und prüfen Sie, ob das Modul steckt.</translation>
    </message>
    <message>
        <source>The fieldbus module in the slave slot is not one for the %1.</source>
        <translation>Das Feldbusmodul im Slave-Steckplatz ist nicht das richtige (%1).</translation>
    </message>
    <message>
        <source>the module&apos;s code and the one that is needed</source>
        <translation>der Code des Moduls und der nötige</translation>
    </message>
    <message>
        <source>Fit the right module, or switch the role off.</source>
        <translation>Setzen Sie das richtige Modul ein, oder schalten Sie die Rolle aus.</translation>
    </message>
    <message>
        <source>The partner of the %1 refuses or answers with errors.</source>
        <translation>Die Gegenseite lehnt ab oder antwortet mit Fehlern (%1).</translation>
    </message>
    <message>
        <source>the link and the error</source>
        <translation>Verbindung und Fehler</translation>
    </message>
    <message>
        <source>Compare address, port and unit or node with the partner&apos;s settings.</source>
        <translation>Vergleichen Sie Adresse, Port und Gerätenummer oder Knoten mit den Einstellungen der Gegenseite.</translation>
    </message>
    <message>
        <source>No partner is connected to the %1.</source>
        <translation>Keine Gegenseite ist verbunden (%1).</translation>
    </message>
    <message>
        <source>the connection</source>
        <translation>die Verbindung</translation>
    </message>
    <message>
        <source>Start the partner&apos;s program, and check that it connects to the robot&apos;s address and port.</source>
        <translation>Starten Sie das Programm der Gegenseite und prüfen Sie, ob es Adresse und Port des Roboters verwendet.</translation>
    </message>
    <message>
        <source>The %1 is on, but its server does not run.</source>
        <translation>%1 ist eingeschaltet, aber der Server läuft nicht.</translation>
    </message>
    <message>
        <source>the server&apos;s state</source>
        <translation>der Zustand des Servers</translation>
    </message>
    <message>
        <source>Press Start Monitor on its page; when it does not start, its port is taken.</source>
        <translation>Drücken Sie auf der Seite „Überwachung starten“; startet er nicht, ist der Port belegt.</translation>
    </message>
    <message>
        <source>The device %1 (MAC ID %2) does not answer on the network.</source>
        <translation>Das Gerät %1 (MAC ID %2) antwortet nicht.</translation>
    </message>
    <message>
        <source>state and code of the device</source>
        <translation>Zustand und Code des Geräts</translation>
    </message>
    <message>
        <source>Check the device&apos;s power, its plug and the MAC ID that is set on it.</source>
        <translation>Prüfen Sie Strom und Stecker des Geräts und die MAC ID, die daran eingestellt ist.</translation>
    </message>
    <message>
        <source>The device %1 was not taken: another one has its MAC ID %2.</source>
        <translation>Das Gerät %1 wurde nicht aufgenommen: Ein anderes hat die MAC ID %2.</translation>
    </message>
    <message>
        <source>Give each device a MAC ID of its own, on the device and in the scan list.</source>
        <translation>Geben Sie jedem Gerät eine eigene MAC ID, am Gerät und in der Scanliste.</translation>
    </message>
    <message>
        <source>The device %1 (MAC ID %2) is down with the code %3.</source>
        <translation>Das Gerät %1 (MAC ID %2) ist mit dem Code %3 ausgefallen.</translation>
    </message>
    <message>
        <source>Look the code up in the manual of the DeviceNet master.</source>
        <translation>Schlagen Sie den Code im Handbuch des DeviceNet-Masters nach.</translation>
    </message>
    <message>
        <source>The slave %2 of the %1 is not connected.</source>
        <translation>Der Slave %2 (%1) ist nicht verbunden.</translation>
    </message>
    <message>
        <source>state of the slave</source>
        <translation>der Zustand des Slaves</translation>
    </message>
    <message>
        <source>Check the slave&apos;s power and cable, and its place in the master&apos;s configuration.</source>
        <translation>Prüfen Sie Strom und Kabel des Slaves und seinen Platz in der Konfiguration des Masters.</translation>
    </message>
    <message>
        <source>The %1 was saved as %2, but runs as %3 until the robot is restarted.</source>
        <translation>%1 wurde als %2 gespeichert, läuft aber als %3, bis der Roboter neu startet.</translation>
    </message>
    <message>
        <source>the file and what came up</source>
        <translation>die Datei und was gestartet ist</translation>
    </message>
    <message>
        <source>Restart the robot when production allows it.</source>
        <translation>Starten Sie den Roboter neu, wenn die Produktion es zulässt.</translation>
    </message>
    <message>
        <source>The controller has not taken over what was announced.</source>
        <translation>Die Steuerung hat nicht übernommen, was angekündigt wurde.</translation>
    </message>
    <message>
        <source>the variable that announces it</source>
        <translation>die Variable, die es ankündigt</translation>
    </message>
    <message>
        <source>Wait a moment; when it stays, restart the robot and save again.</source>
        <translation>Warten Sie einen Augenblick; bleibt es so, starten Sie den Roboter neu und speichern Sie noch einmal.</translation>
    </message>
    <message>
        <source>The controller has rejected the I/O mapping.</source>
        <translation>Die Steuerung hat die Konfiguration abgelehnt.</translation>
    </message>
    <message>
        <source>the controller&apos;s answer</source>
        <translation>die Antwort der Steuerung</translation>
    </message>
    <message>
        <source>Look for findings about the mapping, correct it on the I/O mapping page, and save again.</source>
        <translation>Suchen Sie Befunde zur Konfiguration, berichtigen Sie sie auf ihrer Seite und speichern Sie noch einmal.</translation>
    </message>
    <message>
        <source>The controller has not taken the command to open or close the %1.</source>
        <translation>Die Steuerung hat den Befehl zum Öffnen oder Schließen nicht angenommen (%1).</translation>
    </message>
    <message>
        <source>the command</source>
        <translation>der Befehl</translation>
    </message>
    <message>
        <source>Restart the robot and switch the role again.</source>
        <translation>Starten Sie den Roboter neu und schalten Sie die Rolle noch einmal.</translation>
    </message>
    <message>
        <source>The link of the %1 has been down for %2 s; the watch reports the loss after %3 s.</source>
        <translation>Die Verbindung fehlt seit %2 s (%1); die Überwachung meldet den Verlust nach %3 s.</translation>
    </message>
    <message>
        <source>the link and the watch&apos;s time-out</source>
        <translation>die Verbindung und die Zeit der Überwachung</translation>
    </message>
    <message>
        <source>Bring the link back, or stop the robot in order.</source>
        <translation>Stellen Sie die Verbindung wieder her, oder halten Sie den Roboter geordnet an.</translation>
    </message>
    <message>
        <source>The link of the %1 has been down for %2 s, and the watch has reported the loss after %3 s.</source>
        <translation>Die Verbindung fehlt seit %2 s (%1), und die Überwachung hat den Verlust nach %3 s gemeldet.</translation>
    </message>
    <message>
        <source>Bring the link back; then acknowledge the alarm.</source>
        <translation>Stellen Sie die Verbindung wieder her; quittieren Sie dann den Alarm.</translation>
    </message>
    <message>
        <source>%1 is missing.</source>
        <translation>%1 fehlt.</translation>
    </message>
    <message>
        <source>the file&apos;s place on the controller</source>
        <translation>der Platz der Datei auf der Steuerung</translation>
    </message>
    <message>
        <source>Export again; when it is missing then too, restore the file from a backup.</source>
        <translation>Exportieren Sie noch einmal; fehlt sie auch dann, holen Sie die Datei aus einer Sicherung.</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 ist leer.</translation>
    </message>
    <message>
        <source>the file&apos;s size</source>
        <translation>die Größe der Datei</translation>
    </message>
    <message>
        <source>Restore the file from a backup: the controller cannot use it.</source>
        <translation>Holen Sie die Datei aus einer Sicherung: Die Steuerung kann sie nicht verwenden.</translation>
    </message>
    <message>
        <source>%1 is no well-formed XML.</source>
        <translation>%1 ist kein wohlgeformtes XML.</translation>
    </message>
    <message>
        <source>the first place that cannot be read</source>
        <translation>die erste Stelle, die nicht gelesen werden kann</translation>
    </message>
    <message>
        <source>Restore the file from a backup, or correct the line that is named.</source>
        <translation>Holen Sie die Datei aus einer Sicherung, oder berichtigen Sie die genannte Zeile.</translation>
    </message>
    <message>
        <source>%1 is another file than its name says.</source>
        <translation>%1 ist eine andere Datei, als ihr Name sagt.</translation>
    </message>
    <message>
        <source>the element that it begins with</source>
        <translation>das Element, mit dem sie beginnt</translation>
    </message>
    <message>
        <source>Find out what was copied to its place, and restore the right file.</source>
        <translation>Finden Sie heraus, was an ihre Stelle kopiert wurde, und holen Sie die richtige Datei zurück.</translation>
    </message>
    <message>
        <source>%1 is only a part of a file.</source>
        <translation>%1 ist nur ein Teil einer Datei.</translation>
    </message>
    <message>
        <source>what it lacks</source>
        <translation>was ihr fehlt</translation>
    </message>
    <message>
        <source>Restore the file from a backup.</source>
        <translation>Holen Sie die Datei aus einer Sicherung.</translation>
    </message>
    <message>
        <source>%1 is larger than any file of a controller.</source>
        <translation>%1 ist größer als jede Datei einer Steuerung.</translation>
    </message>
    <message>
        <source>%1 is no text in the encoding that the controller reads.</source>
        <translation>%1 ist kein Text in der Kodierung, die die Steuerung liest.</translation>
    </message>
    <message>
        <source>what is wrong with its bytes</source>
        <translation>was an ihren Bytes falsch ist</translation>
    </message>
    <message>
        <source>Restore the file from a backup, or save it as UTF-8.</source>
        <translation>Holen Sie die Datei aus einer Sicherung, oder speichern Sie sie als UTF-8.</translation>
    </message>
    <message>
        <source>%1 holds an element &lt;%2&gt; that is not known here.</source>
        <translation>%1 enthält ein Element &lt;%2&gt;, das hier nicht bekannt ist.</translation>
    </message>
    <message>
        <source>the element</source>
        <translation>das Element</translation>
    </message>
    <message>
        <source>Nothing: it is kept as it is. Look for a misspelling when a setting has no effect.</source>
        <translation>Nichts: Es bleibt, wie es ist. Suchen Sie einen Schreibfehler, wenn eine Einstellung nicht wirkt.</translation>
    </message>
    <message>
        <source>The list of roles names &quot;%1&quot;, which is not known here.</source>
        <translation>Die Liste der Rollen nennt „%1“, was hier nicht bekannt ist.</translation>
    </message>
    <message>
        <source>the role and whether it is on</source>
        <translation>die Rolle und ob sie eingeschaltet ist</translation>
    </message>
    <message>
        <source>Nothing, unless it is a misspelling of a role.</source>
        <translation>Nichts, es sei denn, eine Rolle ist falsch geschrieben.</translation>
    </message>
    <message>
        <source>The list of roles names &quot;%1&quot; more than once; only the first entry counts.</source>
        <translation>Die Liste der Rollen nennt „%1“ mehrmals; nur der erste Eintrag zählt.</translation>
    </message>
    <message>
        <source>the role</source>
        <translation>die Rolle</translation>
    </message>
    <message>
        <source>Remove the other entries from fieldbus.xml.</source>
        <translation>Entfernen Sie die anderen Einträge aus fieldbus.xml.</translation>
    </message>
    <message>
        <source>Two files disagree about whether the %1 is on.</source>
        <translation>Zwei Dateien widersprechen sich, ob die Rolle eingeschaltet ist: %1.</translation>
    </message>
    <message>
        <source>what each of them says</source>
        <translation>was jede von ihnen sagt</translation>
    </message>
    <message>
        <source>Save the bus switches once more and restart the robot.</source>
        <translation>Speichern Sie die Bus-Schalter noch einmal und starten Sie den Roboter neu.</translation>
    </message>
    <message>
        <source>EtherNet/IP master, EtherCAT master and PROFINET master exclude each other, and more than one is on.</source>
        <translation>EtherNet/IP-Master, EtherCAT-Master und PROFINET-Master schließen einander aus, und mehr als einer ist eingeschaltet.</translation>
    </message>
    <message>
        <source>the masters that are on</source>
        <translation>die eingeschalteten Master</translation>
    </message>
    <message>
        <source>Switch all of them off but one on the bus switch page.</source>
        <translation>Schalten Sie auf der Seite „Bus-Einstellung“ alle bis auf einen aus.</translation>
    </message>
    <message>
        <source>DeviceNet slave and DeviceNet master exclude each other, and both are on.</source>
        <translation>DeviceNet-Slave und DeviceNet-Master schließen einander aus, und beide sind eingeschaltet.</translation>
    </message>
    <message>
        <source>the two roles</source>
        <translation>die beiden Rollen</translation>
    </message>
    <message>
        <source>Switch one of them off on the bus switch page.</source>
        <translation>Schalten Sie auf der Seite „Bus-Einstellung“ eine von beiden aus.</translation>
    </message>
    <message>
        <source>The %1 is on without the bus free configuration, which it needs.</source>
        <translation>%1 ist ohne die freie Konfiguration eingeschaltet, die dafür nötig ist.</translation>
    </message>
    <message>
        <source>the role and FreeBus</source>
        <translation>die Rolle und FreeBus</translation>
    </message>
    <message>
        <source>Switch FreeBus on, or the role off.</source>
        <translation>Schalten Sie FreeBus ein oder die Rolle aus.</translation>
    </message>
    <message>
        <source>The %1 is on, but its device %2 is switched off.</source>
        <translation>%1 ist eingeschaltet, aber das Gerät %2 dazu ist ausgeschaltet.</translation>
    </message>
    <message>
        <source>the role and the device&apos;s line</source>
        <translation>die Rolle und die Zeile des Geräts</translation>
    </message>
    <message>
        <source>Activate the device on the page of the role, and restart the robot.</source>
        <translation>Aktivieren Sie das Gerät auf der Seite der Rolle und starten Sie den Roboter neu.</translation>
    </message>
    <message>
        <source>The device number %1 is in use under two names.</source>
        <translation>Die Gerätenummer %1 ist unter zwei Namen in Verwendung.</translation>
    </message>
    <message>
        <source>the lines that have it in use</source>
        <translation>die Zeilen, die sie verwenden</translation>
    </message>
    <message>
        <source>Deactivate one of them on the page of its role.</source>
        <translation>Deaktivieren Sie eines davon auf der Seite seiner Rolle.</translation>
    </message>
    <message>
        <source>The device %2 is in use, but the %1 is off.</source>
        <translation>Das Gerät %2 ist in Verwendung, aber %1 ist ausgeschaltet.</translation>
    </message>
    <message>
        <source>the device&apos;s line and the role</source>
        <translation>die Zeile des Geräts und die Rolle</translation>
    </message>
    <message>
        <source>The Modbus TCP slave is listed as off; the controller runs it all the same.</source>
        <translation>Der Modbus-TCP-Slave steht als ausgeschaltet in der Liste; die Steuerung betreibt ihn trotzdem.</translation>
    </message>
    <message>
        <source>Nothing: the next save of the bus switches brings it back.</source>
        <translation>Nichts: Das nächste Speichern der Bus-Schalter bringt ihn zurück.</translation>
    </message>
    <message>
        <source>The master card is in use by more than one master: %1.</source>
        <translation>Mehr als ein Master verwendet die Masterkarte: %1.</translation>
    </message>
    <message>
        <source>the lines of the devices</source>
        <translation>die Zeilen der Geräte</translation>
    </message>
    <message>
        <source>Deactivate the device of the master that is not wanted on its page.</source>
        <translation>Deaktivieren Sie das Gerät des Masters, der nicht gewünscht ist, auf dessen Seite.</translation>
    </message>
    <message>
        <source>The %1 has the address %2, which is no network port&apos;s of the robot.</source>
        <translation>Die Adresse %2 (%1) gehört zu keinem Netzwerkanschluss des Roboters.</translation>
    </message>
    <message>
        <source>the address and those of the ports</source>
        <translation>die Adresse und die der Anschlüsse</translation>
    </message>
    <message>
        <source>Choose the port again on the page of the role and save, or correct the port&apos;s address.</source>
        <translation>Wählen Sie auf der Seite der Rolle den Anschluss neu und speichern Sie, oder berichtigen Sie die Adresse des Anschlusses.</translation>
    </message>
    <message>
        <source>The %1 has another net mask than the port with its address.</source>
        <translation>Die Netzmaske ist eine andere als die des Anschlusses mit dieser Adresse (%1).</translation>
    </message>
    <message>
        <source>the two masks</source>
        <translation>die beiden Masken</translation>
    </message>
    <message>
        <source>Choose the port again on the page of the role and save.</source>
        <translation>Wählen Sie auf der Seite der Rolle den Anschluss neu und speichern Sie.</translation>
    </message>
    <message>
        <source>The ports %1 and %2 are in the same net: it is open which of them answers.</source>
        <translation>Die Anschlüsse %1 und %2 liegen im selben Netz: Es ist offen, welcher antwortet.</translation>
    </message>
    <message>
        <source>addresses and masks of the two</source>
        <translation>Adressen und Masken der beiden</translation>
    </message>
    <message>
        <source>Give one of them an address in another net.</source>
        <translation>Geben Sie einem davon eine Adresse in einem anderen Netz.</translation>
    </message>
    <message>
        <source>The ports %1 and %2 have the same address.</source>
        <translation>Die Anschlüsse %1 und %2 haben dieselbe Adresse.</translation>
    </message>
    <message>
        <source>the address</source>
        <translation>die Adresse</translation>
    </message>
    <message>
        <source>Give one of them another address.</source>
        <translation>Geben Sie einem davon eine andere Adresse.</translation>
    </message>
    <message>
        <source>The %1 connects to %2, which is the robot itself.</source>
        <translation>%1 verbindet sich mit %2, und das ist der Roboter selbst.</translation>
    </message>
    <message>
        <source>the partner&apos;s address and the ports&apos;</source>
        <translation>die Adresse der Gegenseite und die der Anschlüsse</translation>
    </message>
    <message>
        <source>Enter the partner&apos;s address on the page of the role.</source>
        <translation>Geben Sie auf der Seite der Rolle die Adresse der Gegenseite ein.</translation>
    </message>
    <message>
        <source>The %1 connects to %2, which never leaves the controller.</source>
        <translation>%1 verbindet sich mit %2, was die Steuerung nie verlässt.</translation>
    </message>
    <message>
        <source>the partner&apos;s address</source>
        <translation>die Adresse der Gegenseite</translation>
    </message>
    <message>
        <source>Nothing in a trial; in a plant enter the partner&apos;s address on the page of the role.</source>
        <translation>Nichts im Versuch; in einer Anlage geben Sie auf der Seite der Rolle die Adresse der Gegenseite ein.</translation>
    </message>
    <message>
        <source>&quot;%2&quot; of the %1 is no IPv4 address.</source>
        <translation>„%2“ (%1) ist keine IPv4-Adresse.</translation>
    </message>
    <message>
        <source>the text</source>
        <translation>der Text</translation>
    </message>
    <message>
        <source>Enter four numbers from 0 to 255 with points between them.</source>
        <translation>Geben Sie vier Zahlen von 0 bis 255 mit Punkten dazwischen ein.</translation>
    </message>
    <message>
        <source>The %1 connects to %2, which is in no net of the robot&apos;s ports.</source>
        <translation>%1 verbindet sich mit %2, was in keinem Netz der Anschlüsse des Roboters liegt.</translation>
    </message>
    <message>
        <source>the partner&apos;s address and the ports&apos; nets</source>
        <translation>die Adresse der Gegenseite und die Netze der Anschlüsse</translation>
    </message>
    <message>
        <source>Check the address, or give a port one in the partner&apos;s net, unless a router is between them.</source>
        <translation>Prüfen Sie die Adresse, oder geben Sie einem Anschluss eine im Netz der Gegenseite, wenn kein Router dazwischen ist.</translation>
    </message>
    <message>
        <source>&quot;%2&quot; is no net mask (%1).</source>
        <translation>„%2“ ist keine Netzmaske (%1).</translation>
    </message>
    <message>
        <source>Enter a mask such as 255.255.255.0.</source>
        <translation>Geben Sie eine Maske wie 255.255.255.0 ein.</translation>
    </message>
    <message>
        <source>The %1 listens on the port %2, which %3 of the controller has taken.</source>
        <translation>%1 hört am Port %2, den schon %3 der Steuerung belegt.</translation>
    </message>
    <message>
        <source>the port</source>
        <translation>der Port</translation>
    </message>
    <message>
        <source>Choose another port on the page of the role, 8008 for example.</source>
        <translation>Wählen Sie auf der Seite der Rolle einen anderen Port, zum Beispiel 8008.</translation>
    </message>
    <message>
        <source>The %1 listens on the port %2, which %3 uses as well.</source>
        <translation>%1 hört am Port %2, den auch %3 verwendet.</translation>
    </message>
    <message>
        <source>the port in both files</source>
        <translation>der Port in beiden Dateien</translation>
    </message>
    <message>
        <source>Choose another port for one of the two.</source>
        <translation>Wählen Sie für einen der beiden einen anderen Port.</translation>
    </message>
    <message>
        <source>&quot;%2&quot; of the %1 is no TCP port.</source>
        <translation>„%2“ (%1) ist kein TCP-Port.</translation>
    </message>
    <message>
        <source>Enter a number from 1 to 65535 on the page of the role.</source>
        <translation>Geben Sie auf der Seite der Rolle eine Zahl von 1 bis 65535 ein.</translation>
    </message>
    <message>
        <source>The %1 uses the network port %2, which has no address.</source>
        <translation>%1 verwendet den Netzwerkanschluss %2, der keine Adresse hat.</translation>
    </message>
    <message>
        <source>Give the port an address, or choose the other one on the page of the role.</source>
        <translation>Geben Sie dem Anschluss eine Adresse, oder wählen Sie auf der Seite der Rolle den anderen.</translation>
    </message>
    <message>
        <source>The FINS node %1 is the server&apos;s: nodes are the last number of the address.</source>
        <translation>Der FINS-Knoten %1 ist der des Servers: Knoten sind die letzte Zahl der Adresse.</translation>
    </message>
    <message>
        <source>the node and the server&apos;s address</source>
        <translation>der Knoten und die Adresse des Servers</translation>
    </message>
    <message>
        <source>Enter the last number of the robot&apos;s own address as client node.</source>
        <translation>Geben Sie als Client-Knoten die letzte Zahl der eigenen Adresse des Roboters ein.</translation>
    </message>
    <message>
        <source>The FINS node %1 is outside 1 to 254.</source>
        <translation>Der FINS-Knoten %1 liegt außerhalb von 1 bis 254.</translation>
    </message>
    <message>
        <source>the node</source>
        <translation>der Knoten</translation>
    </message>
    <message>
        <source>The FINS node %1 is not the last number of the address of %2.</source>
        <translation>Der FINS-Knoten %1 ist nicht die letzte Zahl der Adresse von %2.</translation>
    </message>
    <message>
        <source>the node and the port&apos;s address</source>
        <translation>der Knoten und die Adresse des Anschlusses</translation>
    </message>
    <message>
        <source>Nothing, unless the server assigns nodes by address.</source>
        <translation>Nichts, es sei denn, der Server vergibt Knoten nach der Adresse.</translation>
    </message>
    <message>
        <source>The DM address %1 is outside 0 to 32767.</source>
        <translation>Die DM-Adresse %1 liegt außerhalb von 0 bis 32767.</translation>
    </message>
    <message>
        <source>Enter an address that the server has.</source>
        <translation>Geben Sie eine Adresse ein, die der Server hat.</translation>
    </message>
    <message>
        <source>The FINS client reads and writes at the same DM address, %1.</source>
        <translation>Der FINS-Client liest und schreibt an derselben DM-Adresse %1.</translation>
    </message>
    <message>
        <source>the two addresses</source>
        <translation>die beiden Adressen</translation>
    </message>
    <message>
        <source>Enter another address for one direction: the robot reads what it wrote.</source>
        <translation>Geben Sie für eine Richtung eine andere Adresse ein: Der Roboter liest, was er geschrieben hat.</translation>
    </message>
    <message>
        <source>The settings of the %1 were saved, but run after the next restart only.</source>
        <translation>Einstellungen wurden gespeichert, gelten aber erst ab dem nächsten Neustart: %1.</translation>
    </message>
    <message>
        <source>what was changed, as saved and as it came up</source>
        <translation>was geändert wurde, gespeichert und beim Start</translation>
    </message>
    <message>
        <source>The controller has refused the bus switches that were saved.</source>
        <translation>Die Steuerung hat die gespeicherten Bus-Schalter abgelehnt.</translation>
    </message>
    <message>
        <source>Check on the bus switch page which roles are on, and save once more.</source>
        <translation>Prüfen Sie auf der Seite „Bus-Einstellung“, welche Rollen ein sind, und speichern Sie noch einmal.</translation>
    </message>
</context>
<context>
    <name>FindingsPage</name>
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>Rolle</translation>
    </message>
    <message>
        <source>Cause and what to do</source>
        <translation>Ursache und was zu tun ist</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>Es wurde nichts gefunden.</translation>
    </message>
    <message numerus="yes">
        <source>%n finding(s), the worst first</source>
        <translation>
            <numerusform>%n Befund, der schwerste zuerst</numerusform>
            <numerusform>%n Befunde, die schwersten zuerst</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 after %2</source>
        <translation>%1 nach %2</translation>
    </message>
    <message>
        <source>The pendant was started</source>
        <translation>Das Bediengerät wurde gestartet</translation>
    </message>
    <message>
        <source>The controller does not answer: it restarts, or its cable is out</source>
        <translation>Die Steuerung antwortet nicht: Sie startet neu, oder ihr Kabel ist ab</translation>
    </message>
    <message>
        <source>The controller is back</source>
        <translation>Die Steuerung ist wieder da</translation>
    </message>
    <message>
        <source>Link lost</source>
        <translation>Verbindung verloren</translation>
    </message>
    <message>
        <source>Link back</source>
        <translation>Verbindung wieder da</translation>
    </message>
    <message>
        <source>The controller refused %1</source>
        <translation>Die Steuerung hat %1 abgelehnt</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... und %1 weitere</translation>
    </message>
    <message>
        <source>%1 was sent</source>
        <translation>%1 wurde gesendet</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>Rolle</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>Was geschah</translation>
    </message>
    <message>
        <source>All roles</source>
        <translation>Alle Rollen</translation>
    </message>
    <message>
        <source>No loss of the link that has ended.</source>
        <translation>Kein Verbindungsverlust, der beendet ist.</translation>
    </message>
    <message>
        <source>Longest loss: %1.</source>
        <translation>Längster Verlust: %1.</translation>
    </message>
    <message>
        <source>The watch trips after %1 s.</source>
        <translation>Die Überwachung löst nach %1 s aus.</translation>
    </message>
    <message>
        <source>The link is not watched.</source>
        <translation>Die Verbindung wird nicht überwacht.</translation>
    </message>
</context>
<context>
    <name>OverviewPage</name>
    <message>
        <source>State of the roles</source>
        <translation>Zustand der Rollen</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>Rolle</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>Since</source>
        <translation>Seit</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
    <message>
        <source>What runs</source>
        <translation>Was läuft</translation>
    </message>
    <message>
        <source>Saved, runs after the next restart: %1</source>
        <translation>Gespeichert, läuft ab dem nächsten Neustart: %1</translation>
    </message>
    <message>
        <source>up</source>
        <translation>bereit</translation>
    </message>
    <message>
        <source>down</source>
        <translation>getrennt</translation>
    </message>
    <message>
        <source>Switched
on</source>
        <translation>Ein-
geschaltet</translation>
    </message>
    <message>
        <source>Runs
now</source>
        <translation>Läuft
jetzt</translation>
    </message>
</context>
<context>
    <name>RolePage</name>
    <message>
        <source>State and settings of the role</source>
        <translation>Zustand und Einstellungen der Rolle</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Was</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>up</source>
        <translation>bereit</translation>
    </message>
    <message>
        <source>down</source>
        <translation>getrennt</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>%1 since %2</source>
        <translation>%1 seit %2</translation>
    </message>
    <message>
        <source>Switched on</source>
        <translation>Eingeschaltet</translation>
    </message>
    <message>
        <source>Runs now</source>
        <translation>Läuft</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>Saved, runs after the next restart</source>
        <translation>Gespeichert, läuft ab dem nächsten Neustart</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>Was zu tun ist</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
    <message>
        <source>Device %1, MAC ID %2</source>
        <translation>Gerät %1, MAC ID %2</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>verbunden</translation>
    </message>
    <message>
        <source>not connected: %1 (code %2)</source>
        <translation>nicht verbunden: %1 (Code %2)</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>nicht verbunden</translation>
    </message>
    <message>
        <source>the coupling failed</source>
        <translation>Ankoppeln fehlgeschlagen</translation>
    </message>
    <message>
        <source>the decoupling failed</source>
        <translation>Abkoppeln fehlgeschlagen</translation>
    </message>
    <message>
        <source>Slave %1, dynamic</source>
        <translation>Slave %1, dynamisch</translation>
    </message>
    <message>
        <source>Slave %1, fixed</source>
        <translation>Slave %1, fest</translation>
    </message>
    <message>
        <source>Slave %1</source>
        <translation>Slave %1</translation>
    </message>
    <message>
        <source>Slaves</source>
        <translation>Slaves</translation>
    </message>
    <message>
        <source>Settings: %1 (%2)</source>
        <translation>Einstellungen: %1 (%2)</translation>
    </message>
    <message>
        <source>%1 goes out as %2</source>
        <translation>%1 wird als %2 gesendet</translation>
    </message>
    <message>
        <source>could not be fetched the last time: what is shown of it is older</source>
        <translation>konnte zuletzt nicht geholt werden: Gezeigt wird ein älterer Stand</translation>
    </message>
    <message>
        <source>could not be fetched</source>
        <translation>konnte nicht geholt werden</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>missing</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>there</source>
        <translation>vorhanden</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>beschädigt</translation>
    </message>
    <message>
        <source>not set</source>
        <translation>nicht gesetzt</translation>
    </message>
    <message>
        <source>addresses move</source>
        <translation>Adressen verschieben sich</translation>
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
        <source>port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>protocol</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>interval</source>
        <translation>Intervall</translation>
    </message>
    <message>
        <source>network port</source>
        <translation>Netzwerkanschluss</translation>
    </message>
    <message>
        <source>server&apos;s IP address</source>
        <translation>IP-Adresse des Servers</translation>
    </message>
    <message>
        <source>server&apos;s port</source>
        <translation>Port des Servers</translation>
    </message>
    <message>
        <source>node</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>connects by itself</source>
        <translation>verbindet sich selbst</translation>
    </message>
    <message>
        <source>first DM word read</source>
        <translation>erstes gelesenes DM-Wort</translation>
    </message>
    <message>
        <source>first DM word written</source>
        <translation>erstes geschriebenes DM-Wort</translation>
    </message>
    <message>
        <source>network port %1</source>
        <translation>Netzwerkanschluss %1</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP-Adresse</translation>
    </message>
    <message>
        <source>network mask</source>
        <translation>Netzmaske</translation>
    </message>
    <message>
        <source>free</source>
        <translation>frei</translation>
    </message>
    <message>
        <source>fixed</source>
        <translation>fest</translation>
    </message>
    <message>
        <source>read only</source>
        <translation>nur lesen</translation>
    </message>
    <message>
        <source>write only</source>
        <translation>nur schreiben</translation>
    </message>
    <message>
        <source>read and write</source>
        <translation>lesen und schreiben</translation>
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
        <translation>Bool-Adressen</translation>
    </message>
    <message>
        <source>Int addresses</source>
        <translation>Int-Adressen</translation>
    </message>
    <message>
        <source>Float addresses</source>
        <translation>Float-Adressen</translation>
    </message>
    <message>
        <source>system Bool</source>
        <translation>System-Bool</translation>
    </message>
    <message>
        <source>system Int</source>
        <translation>System-Int</translation>
    </message>
    <message>
        <source>system Float</source>
        <translation>System-Float</translation>
    </message>
    <message>
        <source>system Bool addresses</source>
        <translation>System-Bool-Adressen</translation>
    </message>
    <message>
        <source>system Int addresses</source>
        <translation>System-Int-Adressen</translation>
    </message>
    <message>
        <source>system Float addresses</source>
        <translation>System-Float-Adressen</translation>
    </message>
    <message>
        <source>block</source>
        <translation>Block</translation>
    </message>
    <message>
        <source>mapping %1, %2, %3</source>
        <translation>Zuordnung %1, %2, %3</translation>
    </message>
    <message>
        <source>slave&apos;s IP address</source>
        <translation>IP-Adresse des Slaves</translation>
    </message>
    <message>
        <source>slave&apos;s port</source>
        <translation>Port des Slaves</translation>
    </message>
    <message>
        <source>slave&apos;s unit</source>
        <translation>Gerätenummer des Slaves</translation>
    </message>
    <message>
        <source>time-out</source>
        <translation>Wartezeit</translation>
    </message>
    <message>
        <source>byte order read</source>
        <translation>Byte-Reihenfolge beim Lesen</translation>
    </message>
    <message>
        <source>byte order written</source>
        <translation>Byte-Reihenfolge beim Schreiben</translation>
    </message>
    <message>
        <source>keep-alive time</source>
        <translation>Haltezeit der Verbindung</translation>
    </message>
    <message>
        <source>slaves</source>
        <translation>Slaves</translation>
    </message>
    <message>
        <source>disable time-out</source>
        <translation>Wartezeit Abschalten</translation>
    </message>
    <message>
        <source>enable time-out</source>
        <translation>Wartezeit Einschalten</translation>
    </message>
    <message>
        <source>MAC ID</source>
        <translation>MAC ID</translation>
    </message>
    <message>
        <source>baud rate</source>
        <translation>Baudrate</translation>
    </message>
    <message>
        <source>byte order</source>
        <translation>Byte-Reihenfolge</translation>
    </message>
    <message>
        <source>time between scans</source>
        <translation>Zeit zwischen Durchläufen</translation>
    </message>
    <message>
        <source>devices</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <source>input bytes</source>
        <translation>Eingangsbytes</translation>
    </message>
    <message>
        <source>output bytes</source>
        <translation>Ausgangsbytes</translation>
    </message>
    <message>
        <source>vendor</source>
        <translation>Hersteller</translation>
    </message>
    <message>
        <source>product code</source>
        <translation>Produktcode</translation>
    </message>
    <message>
        <source>revision</source>
        <translation>Revision</translation>
    </message>
    <message>
        <source>configuration flags</source>
        <translation>Konfigurationskennzeichen</translation>
    </message>
    <message>
        <source>status register</source>
        <translation>Statusregister</translation>
    </message>
    <message>
        <source>first input register</source>
        <translation>erstes Eingangsregister</translation>
    </message>
    <message>
        <source>first output register</source>
        <translation>erstes Ausgangsregister</translation>
    </message>
    <message>
        <source>fixed and dynamic</source>
        <translation>fest und dynamisch</translation>
    </message>
    <message>
        <source>dynamic</source>
        <translation>dynamisch</translation>
    </message>
    <message>
        <source>slave %1</source>
        <translation>Slave %1</translation>
    </message>
    <message>
        <source>%1, device %2</source>
        <translation>%1, Gerät %2</translation>
    </message>
    <message>
        <source>switch</source>
        <translation>Schalter</translation>
    </message>
    <message>
        <source>switch that runs</source>
        <translation>Schalter, der läuft</translation>
    </message>
    <message>
        <source>heartbeat</source>
        <translation>Heartbeat</translation>
    </message>
    <message>
        <source>heartbeat time-out</source>
        <translation>Wartezeit des Heartbeat</translation>
    </message>
    <message>
        <source>PROFIBUS address</source>
        <translation>PROFIBUS-Adresse</translation>
    </message>
    <message>
        <source>alarm on a lost connection</source>
        <translation>Alarm bei Verbindungsverlust</translation>
    </message>
    <message>
        <source>devices of the %1</source>
        <translation>Geräte: %1</translation>
    </message>
    <message>
        <source>slave module</source>
        <translation>Slave-Modul</translation>
    </message>
    <message>
        <source>master bus</source>
        <translation>Master-Bus</translation>
    </message>
    <message>
        <source>in use</source>
        <translation>in Verwendung</translation>
    </message>
    <message>
        <source>not in use</source>
        <translation>nicht in Verwendung</translation>
    </message>
    <message>
        <source>output bit %1</source>
        <translation>Ausgangsbit %1</translation>
    </message>
    <message>
        <source>input bit %1</source>
        <translation>Eingangsbit %1</translation>
    </message>
</context>
<context>
    <name>StateText</name>
    <message>
        <source>good</source>
        <translation>gut</translation>
    </message>
    <message>
        <source>being checked</source>
        <translation>wird geprüft</translation>
    </message>
    <message>
        <source>outside its settings</source>
        <translation>außerhalb der Vorgaben</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>ausgefallen</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
</context>
<context>
    <name>StatusBox</name>
    <message>
        <source>The last import or export is still coming to its end.
Please try again in a moment.</source>
        <translation>Der letzte Import oder Export ist noch nicht ganz zu Ende.
Bitte versuchen Sie es gleich noch einmal.</translation>
    </message>
</context>
<context>
    <name>StatusMain</name>
    <message>
        <source>Overview</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>The controller does not answer: it restarts, or its cable is out. What is shown is what was known last.</source>
        <translation>Die Steuerung antwortet nicht: Sie startet neu, oder ihr Kabel ist ab. Gezeigt wird, was zuletzt bekannt war.</translation>
    </message>
    <message>
        <source>Waiting for the controller ...</source>
        <translation>Warten auf die Steuerung ...</translation>
    </message>
    <message numerus="yes">
        <source>Reading the controller&apos;s files: %n to come</source>
        <translation>
            <numerusform>Dateien der Steuerung werden gelesen: noch %n</numerusform>
            <numerusform>Dateien der Steuerung werden gelesen: noch %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Read from the controller %1</source>
        <translation>Von Steuerung gelesen: %1</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Änderungen</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Support</translation>
    </message>
</context>
<context>
    <name>Subjects</name>
    <message>
        <source>Heartbeat</source>
        <translation>Heartbeat</translation>
    </message>
    <message>
        <source>ProfiSAFE</source>
        <translation>PROFIsafe</translation>
    </message>
    <message>
        <source>Controller: files and ports</source>
        <translation>Steuerung: Dateien und Anschlüsse</translation>
    </message>
</context>
<context>
    <name>SupportPage</name>
    <message>
        <source>The support bundle %1 is on the USB drive.</source>
        <translation>Das Supportpaket %1 liegt auf dem USB-Laufwerk.</translation>
    </message>
    <message>
        <source>The controller does not give %1. Nothing was written to the drive.</source>
        <translation>Die Steuerung gibt %1 nicht heraus. Auf das Laufwerk wurde nichts geschrieben.</translation>
    </message>
    <message>
        <source>%1 is larger than any configuration file. Nothing was written to the drive.</source>
        <translation>%1 ist größer als jede Konfigurationsdatei. Auf das Laufwerk wurde nichts geschrieben.</translation>
    </message>
    <message>
        <source>The USB drive was pulled out at %1. What is on it is not complete.</source>
        <translation>Das USB-Laufwerk wurde bei %1 abgezogen. Was darauf liegt, ist nicht vollständig.</translation>
    </message>
    <message>
        <source>The USB drive does not take %1: it is full, write-protected or damaged.
What is on it is not complete.</source>
        <translation>Das USB-Laufwerk nimmt %1 nicht an: Es ist voll, schreibgeschützt oder beschädigt.
Was darauf liegt, ist nicht vollständig.</translation>
    </message>
    <message>
        <source>The pendant&apos;s own disk does not take %1. What is on the drive is not complete.</source>
        <translation>Der Speicher des Bediengeräts nimmt %1 nicht an. Was auf dem Laufwerk liegt, ist nicht vollständig.</translation>
    </message>
    <message>
        <source>Write to the USB drive</source>
        <translation>Auf das USB-Laufwerk schreiben</translation>
    </message>
    <message>
        <source>Support bundle</source>
        <translation>Supportpaket</translation>
    </message>
    <message>
        <source>Writes onto a USB drive: all configuration files of the controller, as an export does, and beside them a report with the findings, the history and checksums. Nothing is changed on the controller.</source>
        <translation>Schreibt auf ein USB-Laufwerk: alle Konfigurationsdateien der Steuerung wie ein Export, dazu einen Bericht mit Befunden, Verlauf und Prüfsummen. Auf der Steuerung wird nichts geändert.</translation>
    </message>
    <message>
        <source>No device found!</source>
        <translation>Kein Laufwerk gefunden!</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
</context>
</TS>
