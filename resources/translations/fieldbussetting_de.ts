<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>BusSettingWidget</name>
    <message>
        <source>Bus setting</source>
        <translation>Bus-Einstellung</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Bus switch settings</source>
        <translation>Busse ein- und ausschalten</translation>
    </message>
    <message>
        <source>Bus configuration file import and export</source>
        <translation>Bus-Konfiguration importieren und exportieren</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>EthernetIP master EtherCat master and Profinet master cannot be enabled at the same time!</source>
        <translation>EtherNet/IP-Master, EtherCAT-Master und PROFINET-Master können nicht gleichzeitig eingeschaltet sein!</translation>
    </message>
    <message>
        <source>DeviceNet slave and DeviceNet master cannot be enabled at the same time!</source>
        <translation>DeviceNet-Slave und DeviceNet-Master können nicht gleichzeitig eingeschaltet sein!</translation>
    </message>
    <message>
        <source>If ModbusTcp Master switch is ON,
 the bus free configuration switch needs to be ON!</source>
        <translation>Wenn der Modbus-TCP-Master eingeschaltet ist,
 muss auch die freie Bus-Konfiguration eingeschaltet sein!</translation>
    </message>
    <message>
        <source>If ModbusTcp Master or Profinet Slave switch is ON,
 the bus free configuration switch needs to be ON!</source>
        <translation>Wenn der Modbus-TCP-Master oder der PROFINET-Slave eingeschaltet ist,
 muss auch die freie Bus-Konfiguration eingeschaltet sein!</translation>
    </message>
    <message>
        <source>Failed to get file:%1</source>
        <translation>Datei konnte nicht geholt werden:%1</translation>
    </message>
    <message>
        <source>Failed to read file:%1</source>
        <translation>Datei konnte nicht gelesen werden:%1</translation>
    </message>
    <message>
        <source>Failed to write file:%1</source>
        <translation>Datei konnte nicht geschrieben werden:%1</translation>
    </message>
    <message>
        <source>Failed to send file:%1</source>
        <translation>Datei konnte nicht gesendet werden:%1</translation>
    </message>
    <message>
        <source>Save (%1)</source>
        <translation>Speichern (%1)</translation>
    </message>
    <message>
        <source>Please select ANYBUS in EtherCat slave after, Make the setting effective!</source>
        <translation>Wählen Sie danach beim EtherCAT-Slave ANYBUS, damit die Einstellung wirksam wird!</translation>
    </message>
    <message>
        <source>Please select PNM_DEVICE in Profinet master after, Make the setting effective!</source>
        <translation>Wählen Sie danach beim PROFINET-Master PNM_DEVICE, damit die Einstellung wirksam wird!</translation>
    </message>
    <message>
        <source>Please select EIM_DEVICE in EthernetIP master after, Make the setting effective!</source>
        <translation>Wählen Sie danach beim EtherNet/IP-Master EIM_DEVICE, damit die Einstellung wirksam wird!</translation>
    </message>
    <message>
        <source>The DeviceNet master station has been opened. Please close the master station before opening the slave station.</source>
        <translation>Der DeviceNet-Master ist eingeschaltet. Schalten Sie ihn aus, bevor Sie den Slave einschalten.</translation>
    </message>
    <message>
        <source>The DeviceNet slave station has been opened. Please close the slave station before opening the master station.</source>
        <translation>Der DeviceNet-Slave ist eingeschaltet. Schalten Sie ihn aus, bevor Sie den Master einschalten.</translation>
    </message>
    <message>
        <source>Mes Switch</source>
        <translation>MES</translation>
    </message>
    <message>
        <source>EtherCatSlave Switch</source>
        <translation>EtherCAT-Slave</translation>
    </message>
    <message>
        <source>EtherCatMaster Switch</source>
        <translation>EtherCAT-Master</translation>
    </message>
    <message>
        <source>EthernetIPSlave Switch</source>
        <translation>EtherNet/IP-Slave</translation>
    </message>
    <message>
        <source>EthernetIPMaster Switch</source>
        <translation>EtherNet/IP-Master</translation>
    </message>
    <message>
        <source>ProfinetSlave Switch</source>
        <translation>PROFINET-Slave</translation>
    </message>
    <message>
        <source>ProfinetMaster Switch</source>
        <translation>PROFINET-Master</translation>
    </message>
    <message>
        <source>DeviceNetSlave Switch</source>
        <translation>DeviceNet-Slave</translation>
    </message>
    <message>
        <source>DeviceNetMaster Switch</source>
        <translation>DeviceNet-Master</translation>
    </message>
    <message>
        <source>ModbusTcpMaster Switch</source>
        <translation>Modbus-TCP-Master</translation>
    </message>
    <message>
        <source> FreeBus Switch</source>
        <translation>Freie Konfiguration</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>AUS</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>EIN</translation>
    </message>
    <message>
        <source>%1 ●</source>
        <translation>%1 ●</translation>
    </message>
    <message>
        <source>This operation will cause the robot to restart.
 Are you sure to save the configuration?</source>
        <translation>Dabei startet der Roboter neu.
 Konfiguration wirklich speichern?</translation>
    </message>
    <message>
        <source>Before the save operation is completed,
 clicking on the current interface is invalid.</source>
        <translation>Bis alles gespeichert ist,
 nimmt diese Seite keine Eingaben an.</translation>
    </message>
    <message>
        <source>The fieldbbus is not change,please reset!</source>
        <translation>Am Feldbus wurde nichts geändert. Bitte neu einstellen!</translation>
    </message>
    <message>
        <source>Failed to change bus:</source>
        <translation>Bus konnte nicht umgeschaltet werden:</translation>
    </message>
    <message>
        <source>Failed to write file.</source>
        <translation>Datei konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Successfully saved, the robot is about to restart and take effect.</source>
        <translation>Gespeichert. Der Roboter startet gleich neu, damit es wirksam wird.</translation>
    </message>
    <message>
        <source>No device found!</source>
        <translation>Kein Laufwerk gefunden!</translation>
    </message>
    <message>
        <source>Do you want to export the current robot
 bus related configuration file to the USB drive?</source>
        <translation>Die Bus-Konfiguration dieses Roboters
 auf das USB-Laufwerk exportieren?</translation>
    </message>
    <message>
        <source>Exporting...</source>
        <translation>Export läuft ...</translation>
    </message>
    <message>
        <source>Export file success!</source>
        <translation>Export abgeschlossen!</translation>
    </message>
    <message>
        <source>Export file failed!</source>
        <translation>Export fehlgeschlagen!</translation>
    </message>
</context>
<context>
    <name>ConfigWidget</name>
    <message>
        <source>Configuration</source>
        <translation>Konfiguration</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>User Bool</source>
        <translation>Benutzer-Bool</translation>
    </message>
    <message>
        <source>User Int</source>
        <translation>Benutzer-Int</translation>
    </message>
    <message>
        <source>User Float</source>
        <translation>Benutzer-Float</translation>
    </message>
    <message>
        <source>System Bool</source>
        <translation>System-Bool</translation>
    </message>
    <message>
        <source>System Int</source>
        <translation>System-Int</translation>
    </message>
    <message>
        <source>System Float</source>
        <translation>System-Float</translation>
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
        <translation>Reserviert</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Gesamt</translation>
    </message>
    <message>
        <source>Limit Range: %1 ~ %2, Please Fill In Again!</source>
        <translation>Zulässig: %1 bis %2. Bitte neu eingeben!</translation>
    </message>
    <message>
        <source>Bytes Limit Range: %1 ~ %2, Please Fill In Again!</source>
        <translation>Zulässige Bytes: %1 bis %2. Bitte neu eingeben!</translation>
    </message>
    <message>
        <source>ModbusTCP:User Bool and User Int Bytes Limit Range: %2 ~ %3, Please Fill In Again!</source>
        <translation>Modbus TCP: Benutzer-Bool und Benutzer-Int zusammen %2 bis %3 Bytes. Bitte neu eingeben!</translation>
    </message>
    <message>
        <source>The total quantity cannot be zero!</source>
        <translation>Die Gesamtzahl darf nicht null sein!</translation>
    </message>
    <message>
        <source>The current total input bytes are %1, 
exceeding the maximum bytes of 256. Please re-enter</source>
        <translation>Das sind zusammen %1 Bytes, 
mehr als die zulässigen 256. Bitte neu eingeben</translation>
    </message>
    <message>
        <source>The current total input bytes are %1, 
exceeding the maximum bytes of %2. Please re-enter</source>
        <translation>Das sind zusammen %1 Bytes, 
mehr als die zulässigen %2. Bitte neu eingeben</translation>
    </message>
    <message>
        <source>The current input end address is %1. The end address
 must be less than %2. Please re-enter!</source>
        <translation>Die Endadresse wäre %1. Sie muss
 kleiner als %2 sein. Bitte neu eingeben!</translation>
    </message>
    <message>
        <source>%1:User Bool and User Int Bytes Limit Range: %2 ~ %3, Please Fill In Again!</source>
        <translation>%1: Benutzer-Bool und Benutzer-Int zusammen %2 bis %3 Bytes. Bitte neu eingeben!</translation>
    </message>
    <message>
        <source>%1:The total number of bytes of all bool variables and int variables in user and system variables must be a multiple of %2, Please Fill In Again!</source>
        <translation>%1: Die Bytes aller Bool- und Int-Variablen von Benutzer und System müssen zusammen ein Vielfaches von %2 sein. Bitte neu eingeben!</translation>
    </message>
    <message>
        <source>%1:Bytes Limit Range: %2 ~ %3, Please Fill In Again!</source>
        <translation>%1: Zulässige Bytes: %2 bis %3. Bitte neu eingeben!</translation>
    </message>
    <message>
        <source>%1:The Total Number Of Bytes Must Be A Multiple Of %2, Please Fill In Again!</source>
        <translation>%1: Die Gesamtzahl der Bytes muss ein Vielfaches von %2 sein. Bitte neu eingeben!</translation>
    </message>
    <message>
        <source>The start address of ModbusTcp read-only input must be greater than the end address of write only!</source>
        <translation>Die Startadresse von Modbus TCP „Nur Lesen“ muss größer sein als die Endadresse von „Nur Schreiben“!</translation>
    </message>
    <message>
        <source>The current input read-only end address is %1, and the ModbusTcp read-only end address must be less than
 the readable and writable start address. Please re-enter</source>
        <translation>Die Endadresse von „Nur Lesen“ wäre %1. Sie muss bei Modbus TCP kleiner sein als
 die Startadresse von „Lesen und Schreiben“. Bitte neu eingeben</translation>
    </message>
    <message>
        <source>The current input only write end address is %1, and ModbusTcp only write end address must be less than
 the read-only start address. Please re-enter</source>
        <translation>Die Endadresse von „Nur Schreiben“ wäre %1. Sie muss bei Modbus TCP kleiner sein als
 die Startadresse von „Nur Lesen“. Bitte neu eingeben</translation>
    </message>
    <message>
        <source>The start address of the ModbusTcp readable and writable input must be greater than the end address of the read-only input!</source>
        <translation>Die Startadresse von Modbus TCP „Lesen und Schreiben“ muss größer sein als die Endadresse von „Nur Lesen“!</translation>
    </message>
    <message>
        <source>The current read-only start address is calculated by default from %1,
 which conflicts with writing only the address!</source>
        <translation>Die Startadresse von „Nur Lesen“ wird vorgegeben ab %1 berechnet
 und überschneidet sich mit „Nur Schreiben“!</translation>
    </message>
    <message>
        <source>Conflicting with duplicate address writing only!</source>
        <translation>Die Adressen überschneiden sich mit „Nur Schreiben“!</translation>
    </message>
    <message>
        <source>Currently, only the starting address is calculated by default from %1,
 which conflicts with a read-only address!</source>
        <translation>Die Startadresse von „Nur Schreiben“ wird vorgegeben ab %1 berechnet
 und überschneidet sich mit „Nur Lesen“!</translation>
    </message>
    <message>
        <source>Conflicting with duplicate address reading only!</source>
        <translation>Die Adressen überschneiden sich mit „Nur Lesen“!</translation>
    </message>
    <message>
        <source>System Quantity Can Not Edit!</source>
        <translation>Die Anzahl der Systemvariablen ist fest!</translation>
    </message>
    <message>
        <source>Cannot set start address for quantity 0!</source>
        <translation>Bei Anzahl 0 kann keine Startadresse gesetzt werden!</translation>
    </message>
    <message>
        <source>Tips:
    Type  Bool  Limit  Range: 0 ~ %1!
    Type  Int  Limit  Range: 0 ~ %2!                           
    Type  Float  Limit  Range: 0 ~ %3!
    Type  Bool,Please  Fill  In  A  Multiple  of  %4!
    All Bytes Limit Range: %5 ~ %6!</source>
        <translation>Hinweise:
    Bool: 0 bis %1
    Int: 0 bis %2
    Float: 0 bis %3
    Bool: ein Vielfaches von %4
    Alle Bytes: %5 bis %6</translation>
    </message>
    <message>
        <source>Tips:
    Type  Bool  Limit  Range: 0 ~ %1!
    Type  Int  Limit  Range: 0 ~ %2!                           
    Type  Float  Limit  Range: 0 ~ %3!
    Type  Bool,Please  Fill  In  A  Multiple  of  %4!                           
    All Bytes Limit Range: %5 ~ %6!
</source>
        <translation>Hinweise:
    Bool: 0 bis %1
    Int: 0 bis %2
    Float: 0 bis %3
    Bool: ein Vielfaches von %4
    Alle Bytes: %5 bis %6
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
        <translation>Hinweise:
    Bool: 0 bis %1
    Int: 0 bis %2
    Float: 0 bis %3
    Bool: ein Vielfaches von %4
    Bytes von Bool und Int: %5 bis %6
    Alle Bytes: %7 bis %8
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
        <translation>Hinweise:
    Bool: 0 bis %1
    Int: 0 bis %2
    Float: 0 bis %3
    Bool: ein Vielfaches von %4
    Bytes von Bool und Int: %5 bis %6
    Alle Bytes: %7 bis %8
    Alle Bytes: ein Vielfaches von 8
    Bytes von Bool und Int: ein Vielfaches von %9</translation>
    </message>
    <message>
        <source>Tips:
    Type  Bool  Limit  Range: 0 ~ %1!
    Type  Int  Limit  Range: 0 ~ %2!        
    Type  Float  Limit  Range: 0 ~ %3!
    Type  Bool,Please  Fill  In  A  Multiple  of  %4!
    All Bytes Limit Range: %5 ~ %6!</source>
        <translation>Hinweise:
    Bool: 0 bis %1
    Int: 0 bis %2
    Float: 0 bis %3
    Bool: ein Vielfaches von %4
    Alle Bytes: %5 bis %6</translation>
    </message>
    <message>
        <source>Tips:
    The number of Ecat main stations cannot be modified
                         Type  Bool  Limit  Range: 0 ~ %1!
                         All Bytes Limit Range: %2 ~ %3!
</source>
        <translation>Hinweise:
    Die Anzahl beim EtherCAT-Master ist fest
    Bool: 0 bis %1
    Alle Bytes: %2 bis %3
</translation>
    </message>
    <message>
        <source>Tips:
    The number of EipMaster main stations cannot be modified
                         Type  Bool  Limit  Range: 0 ~ %1!
                         All Bytes Limit Range: %2 ~ %3!
</source>
        <translation>Hinweise:
    Die Anzahl beim EtherNet/IP-Master ist fest
    Bool: 0 bis %1
    Alle Bytes: %2 bis %3
</translation>
    </message>
    <message>
        <source>Tips:
    The number of PfnMaster main stations cannot be modified
                         Type  Bool  Limit  Range: 0 ~ %1!
                         All Bytes Limit Range: %2 ~ %3!
</source>
        <translation>Hinweise:
    Die Anzahl beim PROFINET-Master ist fest
    Bool: 0 bis %1
    Alle Bytes: %2 bis %3
</translation>
    </message>
    <message>
        <source>Tips:
 Type Bool Limit Range: 0 ~ %1!
                         Type Bool,Please Fill In A Multiple of %2!
                        All Bytes Limit Range: %3 ~ %4!
</source>
        <translation>Hinweise:
    Bool: 0 bis %1
    Bool: ein Vielfaches von %2
    Alle Bytes: %3 bis %4
</translation>
    </message>
    <message>
        <source>Mtcp Slave</source>
        <translation>Mtcp-Slave</translation>
    </message>
    <message>
        <source>Ecat Slave</source>
        <translation>Ecat-Slave</translation>
    </message>
    <message>
        <source>Eip Slave</source>
        <translation>Eip-Slave</translation>
    </message>
    <message>
        <source>Pfn Slave</source>
        <translation>Pfn-Slave</translation>
    </message>
    <message>
        <source>Ecat Master</source>
        <translation>Ecat-Master</translation>
    </message>
    <message>
        <source>Dn Slave </source>
        <translation>Dn-Slave</translation>
    </message>
    <message>
        <source>Mtcp Master</source>
        <translation>Mtcp-Master</translation>
    </message>
    <message>
        <source>Eip Master</source>
        <translation>Eip-Master</translation>
    </message>
    <message>
        <source>Pfn Master</source>
        <translation>Pfn-Master</translation>
    </message>
    <message>
        <source>Dn Master</source>
        <translation>Dn-Master</translation>
    </message>
    <message>
        <source>Read Only</source>
        <translation>Nur Lesen</translation>
    </message>
    <message>
        <source>Write Only</source>
        <translation>Nur Schreiben</translation>
    </message>
    <message>
        <source>Read and Write</source>
        <translation>Lesen und Schreiben</translation>
    </message>
    <message>
        <source>Data Type</source>
        <translation>Datentyp</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>Byte</source>
        <translation>Byte</translation>
    </message>
    <message>
        <source>Start Address</source>
        <translation>Start-Adresse</translation>
    </message>
    <message>
        <source>End Address</source>
        <translation>End-Adresse</translation>
    </message>
    <message>
        <source>Bus Variable</source>
        <translation>Bus-Variable</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Are you sure to Save Configuration?</source>
        <translation>Konfiguration wirklich speichern?</translation>
    </message>
    <message>
        <source>Please turn off the servo first!</source>
        <translation>Schalten Sie zuerst den Servo aus!</translation>
    </message>
    <message>
        <source>Please wait....</source>
        <translation>Bitte warten ....</translation>
    </message>
    <message>
        <source>Failed to send %1 file to controller!</source>
        <translation>Datei %1 konnte nicht an die Steuerung gesendet werden!</translation>
    </message>
    <message>
        <source>Save successfully, and send Configuration file to controller! Are you sure to restart robot to make it effect?</source>
        <translation>Gespeichert und an die Steuerung gesendet. Den Roboter jetzt neu starten, damit es wirksam wird?</translation>
    </message>
    <message>
        <source>Bus configuration modification failed!</source>
        <translation>Bus-Konfiguration konnte nicht geändert werden!</translation>
    </message>
    <message>
        <source>Please manually power off and restart the robot later!</source>
        <translation>Schalten Sie den Roboter später von Hand aus und wieder ein!</translation>
    </message>
</context>
<context>
    <name>DeviceNetMasterSetting</name>
    <message>
        <source>DeviceNet Master Setting</source>
        <translation>DeviceNet-Master einstellen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>kbps</source>
        <translation>kbit/s</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>MAC ID does not allow duplicates!</source>
        <translation>Eine MAC ID darf nur einmal vorkommen!</translation>
    </message>
    <message>
        <source>The total number of bytes in the Input cannot exceed the number of bytes configured on the bus free configuration interface!</source>
        <translation>Die Eingangsbytes dürfen zusammen nicht mehr sein, als in der freien Bus-Konfiguration eingestellt sind!</translation>
    </message>
    <message>
        <source>The total number of bytes in the Output cannot exceed the number of bytes configured on the bus free configuration interface!</source>
        <translation>Die Ausgangsbytes dürfen zusammen nicht mehr sein, als in der freien Bus-Konfiguration eingestellt sind!</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Device %1: %2</source>
        <translation>Gerät %1: %2</translation>
    </message>
    <message>
        <source>The table has not been completed. Please complete the settings before saving.</source>
        <translation>Die Tabelle ist noch nicht vollständig. Füllen Sie sie aus, bevor Sie speichern.</translation>
    </message>
    <message>
        <source>Are you sure to save?</source>
        <translation>Wirklich speichern?</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>Disconnected::%1</source>
        <translation>Getrennt::%1</translation>
    </message>
</context>
<context>
    <name>DeviceNetSlaverSetting</name>
    <message>
        <source>DeviceNet Slave Setting</source>
        <translation>DeviceNet-Slave einstellen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>set up</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>Baud rate</source>
        <translation>Baudrate</translation>
    </message>
    <message>
        <source>kbps</source>
        <translation>kbit/s</translation>
    </message>
    <message>
        <source>MACID</source>
        <translation>MAC ID</translation>
    </message>
    <message>
        <source>connect</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>Connect status</source>
        <translation>Verbindungsstatus</translation>
    </message>
    <message>
        <source>MACID value must be even!</source>
        <translation>Die MAC ID muss gerade sein!</translation>
    </message>
    <message>
        <source>Are you sure to save?</source>
        <translation>Wirklich speichern?</translation>
    </message>
    <message>
        <source>Save failed!</source>
        <translation>Speichern fehlgeschlagen!</translation>
    </message>
</context>
<context>
    <name>DeviceTable</name>
    <message>
        <source>Index</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Function Name</source>
        <translation>Funktion</translation>
    </message>
    <message>
        <source>Activate</source>
        <translation>Aktiv</translation>
    </message>
</context>
<context>
    <name>EcatMasterSettingWidget</name>
    <message>
        <source>EtherCat Master Setting</source>
        <translation>EtherCAT-Master einstellen</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
</context>
<context>
    <name>EipMasterSettingWidget</name>
    <message>
        <source>EthernetIP Master Setting</source>
        <translation>EtherNet/IP-Master einstellen</translation>
    </message>
    <message>
        <source>Failed to get eip_master.xml file.</source>
        <translation>Datei eip_master.xml konnte nicht geholt werden.</translation>
    </message>
    <message>
        <source>Failed to read eip_master.xml file.</source>
        <translation>Datei eip_master.xml konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Failed to write eip_master.xml file.</source>
        <translation>Datei eip_master.xml konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Failed to send eip_master.xml file.</source>
        <translation>Datei eip_master.xml konnte nicht gesendet werden.</translation>
    </message>
</context>
<context>
    <name>EtherCatSettingWidget</name>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>Endian</source>
        <translation>Byte-Reihenfolge</translation>
    </message>
    <message>
        <source>EtherCat Slave Setting</source>
        <translation>EtherCAT-Slave einstellen</translation>
    </message>
    <message>
        <source>Are you sure to save?</source>
        <translation>Wirklich speichern?</translation>
    </message>
    <message>
        <source>Failed to write file.</source>
        <translation>Datei konnte nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>EtherNetSettingWidget</name>
    <message>
        <source>EthernetIP Slave Setting</source>
        <translation>EtherNet/IP-Slave einstellen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>The EthernetIP IP address does not match the controller netport. Please reselect.</source>
        <translation>Die IP-Adresse von EtherNet/IP passt zu keinem Netzwerkanschluss der Steuerung. Bitte neu wählen.</translation>
    </message>
    <message>
        <source>connect </source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>Connect status</source>
        <translation>Verbindungsstatus</translation>
    </message>
    <message>
        <source>Communicate performance</source>
        <translation>Kommunikationsleistung</translation>
    </message>
    <message>
        <source>set up</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>Local Port</source>
        <translation>Lokaler Anschluss</translation>
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
        <translation>Kein Adapter</translation>
    </message>
    <message>
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message>
        <source>Netmask</source>
        <translation>Netzmaske</translation>
    </message>
    <message>
        <source>Endian</source>
        <translation>Byte-Reihenfolge</translation>
    </message>
    <message>
        <source>Are you sure to save?</source>
        <translation>Wirklich speichern?</translation>
    </message>
</context>
<context>
    <name>FbMainWidget</name>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>An import was neither finished nor undone: the controller may hold a mixture of files. Press Import on the page of the bus switches.</source>
        <translation>Ein Import wurde weder beendet noch rückgängig gemacht: Auf der Steuerung liegen vielleicht alte und neue Dateien gemischt. Drücken Sie auf der Seite „Bus-Einstellung“ auf „Importieren“.</translation>
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
        <translation>PROFINET-Slave</translation>
    </message>
    <message>
        <source>EthCat</source>
        <translation>EtherCAT-Slave</translation>
    </message>
    <message>
        <source>Eip</source>
        <translation>EtherNet/IP-Slave</translation>
    </message>
    <message>
        <source>BusSetting</source>
        <translation>Bus-Einstellung</translation>
    </message>
    <message>
        <source>Heartbeat</source>
        <translation>Heartbeat</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Konfiguration</translation>
    </message>
    <message>
        <source>Ecm</source>
        <translation>EtherCAT-Master</translation>
    </message>
    <message>
        <source>Dns</source>
        <translation>DeviceNet-Slave</translation>
    </message>
    <message>
        <source>Mbc</source>
        <translation>Modbus TCP-Master</translation>
    </message>
    <message>
        <source>Eim</source>
        <translation>EtherNet/IP-Master</translation>
    </message>
    <message>
        <source>Pnm</source>
        <translation>PROFINET-Master</translation>
    </message>
    <message>
        <source>Dnm</source>
        <translation>DeviceNet-Master</translation>
    </message>
    <message>
        <source>Pfss</source>
        <translation>PROFIsafe</translation>
    </message>
    <message>
        <source>Mtcp</source>
        <translation>Modbus TCP-Slave</translation>
    </message>
    <message>
        <source>The bus configuration could not be read from the controller.</source>
        <translation>Die Bus-Konfiguration konnte nicht von der Steuerung gelesen werden.</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Erneut versuchen</translation>
    </message>
</context>
<context>
    <name>FinsTcpSettingWidget</name>
    <message>
        <source>FinsTCP setting</source>
        <translation>FINS/TCP einstellen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Enable FinsTCP</source>
        <translation>FINS/TCP einschalten</translation>
    </message>
    <message>
        <source>Connect State</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Server IP</source>
        <translation>Server-IP</translation>
    </message>
    <message>
        <source>Server Port</source>
        <translation>Server-Port</translation>
    </message>
    <message>
        <source>Client Node</source>
        <translation>Client-Knoten</translation>
    </message>
    <message>
        <source>Read Address</source>
        <translation>Leseadresse</translation>
    </message>
    <message>
        <source>Write Address</source>
        <translation>Schreibadresse</translation>
    </message>
    <message>
        <source>Local Port</source>
        <translation>Lokaler Anschluss</translation>
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
        <translation>Automatisch verbinden</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>AUS</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>EIN</translation>
    </message>
    <message>
        <source>Are you sure to save?</source>
        <translation>Wirklich speichern?</translation>
    </message>
    <message>
        <source>Save successfully.</source>
        <translation>Gespeichert.</translation>
    </message>
</context>
<context>
    <name>HeartbeatDetectionWidget</name>
    <message>
        <source>Heartbeat Detection</source>
        <translation>Heartbeat-Überwachung</translation>
    </message>
    <message>
        <source>save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>type</source>
        <translation>Bus</translation>
    </message>
    <message>
        <source>switch</source>
        <translation>Schalter</translation>
    </message>
    <message>
        <source>time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>ModbusTcp Slave</source>
        <translation>Modbus-TCP-Slave</translation>
    </message>
    <message>
        <source>EtherCat Slave</source>
        <translation>EtherCAT-Slave</translation>
    </message>
    <message>
        <source>Profinet Slave</source>
        <translation>PROFINET-Slave</translation>
    </message>
    <message>
        <source>EthernetIP Slave</source>
        <translation>EtherNet/IP-Slave</translation>
    </message>
    <message>
        <source>EtherCat Master</source>
        <translation>EtherCAT-Master</translation>
    </message>
    <message>
        <source>DeviceNet Slave</source>
        <translation>DeviceNet-Slave</translation>
    </message>
    <message>
        <source>ModbusTcp Master</source>
        <translation>Modbus-TCP-Master</translation>
    </message>
    <message>
        <source>EthernetIP Master</source>
        <translation>EtherNet/IP-Master</translation>
    </message>
    <message>
        <source>Profinet Master</source>
        <translation>PROFINET-Master</translation>
    </message>
    <message>
        <source>DeviceNet Master</source>
        <translation>DeviceNet-Master</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>%1, time</source>
        <translation>%1, Zeit</translation>
    </message>
    <message>
        <source>Are you sure to save the data ?</source>
        <translation>Wirklich speichern?</translation>
    </message>
    <message>
        <source>Save successfully.</source>
        <translation>Gespeichert.</translation>
    </message>
</context>
<context>
    <name>ImportFolderDialog</name>
    <message>
        <source>Choose the bus configuration to import</source>
        <translation>Bus-Konfiguration für den Import wählen</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
</context>
<context>
    <name>ImportJudge</name>
    <message>
        <source>is empty</source>
        <translation>ist leer</translation>
    </message>
    <message>
        <source>is larger than any file of a controller</source>
        <translation>ist größer als jede Datei einer Steuerung</translation>
    </message>
    <message>
        <source>is no text</source>
        <translation>ist kein Text</translation>
    </message>
    <message>
        <source>is not in UTF-8</source>
        <translation>ist nicht in UTF-8</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>begins with &quot;%1&quot; instead of &quot;%2&quot;</source>
        <translation>beginnt mit „%1“ statt mit „%2“</translation>
    </message>
    <message>
        <source>has no &quot;%1&quot;</source>
        <translation>hat kein „%1“</translation>
    </message>
    <message>
        <source>ends in the middle of a device</source>
        <translation>endet mitten in einem Gerät</translation>
    </message>
    <message>
        <source>holds more than any file of a controller</source>
        <translation>enthält mehr als jede Datei einer Steuerung</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>holds a quantity or an address that is no number in its range</source>
        <translation>enthält eine Anzahl oder Adresse, die keine Zahl in ihrem Bereich ist</translation>
    </message>
    <message>
        <source>It holds no file of a bus configuration.</source>
        <translation>Er enthält keine Datei einer Bus-Konfiguration.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>ImportPreviewDialog</name>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>different</source>
        <translation>anders</translation>
    </message>
    <message>
        <source>new</source>
        <translation>neu</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>same</source>
        <translation>gleich</translation>
    </message>
    <message>
        <source>missing: a link</source>
        <translation>fehlt: Verweis</translation>
    </message>
    <message>
        <source>missing: too large</source>
        <translation>fehlt: zu groß</translation>
    </message>
    <message>
        <source>Import of %1</source>
        <translation>Import von %1</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The controller holds these files already.</source>
        <translation>Die Steuerung hat diese Dateien schon.</translation>
    </message>
    <message>
        <source>Different and new files replace those of the controller; the others stay.</source>
        <translation>Andere und neue Dateien ersetzen die der Steuerung; die übrigen bleiben.</translation>
    </message>
    <message>
        <source>This is not a whole export: it brings %1 of %2 files.</source>
        <translation>Das ist kein vollständiger Export: Er bringt %1 von %2 Dateien.</translation>
    </message>
    <message>
        <source>Bus switch</source>
        <translation>Bus-Schalter</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Danach</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>EIN</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>AUS</translation>
    </message>
    <message>
        <source>This configuration cannot be imported:</source>
        <translation>Diese Konfiguration kann nicht importiert werden:</translation>
    </message>
    <message>
        <source>The PROFINET slave cannot be on in this controller: it will be imported switched off.</source>
        <translation>Der PROFINET-Slave kann in dieser Steuerung nicht ein sein: Er wird ausgeschaltet importiert.</translation>
    </message>
</context>
<context>
    <name>MasterSettingsPanel</name>
    <message>
        <source>Slave Count</source>
        <translation>Anzahl Slaves</translation>
    </message>
    <message>
        <source>DynAlmEnable</source>
        <translation>Dyn. Alarm ein</translation>
    </message>
    <message>
        <source>Disable Timeout</source>
        <translation>Wartezeit Abschalten</translation>
    </message>
    <message>
        <source>Enable Timeout</source>
        <translation>Wartezeit Einschalten</translation>
    </message>
</context>
<context>
    <name>MasterSlaveList</name>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Fixed  Status</source>
        <translation>Fest</translation>
    </message>
    <message>
        <source> Dynamic Status</source>
        <translation>Dynamisch</translation>
    </message>
    <message>
        <source> Connected Status</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>Coupling Status</source>
        <translation>Ankoppeln</translation>
    </message>
    <message>
        <source>Decoupling Status</source>
        <translation>Abkoppeln</translation>
    </message>
</context>
<context>
    <name>MasterTablePage</name>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
</context>
<context>
    <name>MesSettingWidget</name>
    <message>
        <source>Mes setting</source>
        <translation>MES einstellen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Start Monitor</source>
        <translation>Überwachung starten</translation>
    </message>
    <message>
        <source>Local Port</source>
        <translation>Lokaler Anschluss</translation>
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
        <translation>Port</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
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
        <translation>Protokoll</translation>
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
        <translation>Intervall</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>The set port conflicts with %1 default port.</source>
        <translation>Dieser Port ist der vorgegebene Port von %1.</translation>
    </message>
    <message>
        <source>Are you sure to save?</source>
        <translation>Wirklich speichern?</translation>
    </message>
    <message>
        <source>Save successfully.</source>
        <translation>Gespeichert.</translation>
    </message>
    <message>
        <source>Stop Monitor</source>
        <translation>Überwachung beenden</translation>
    </message>
</context>
<context>
    <name>MtcpMasterSetting</name>
    <message>
        <source>ModbusTcp Master setting</source>
        <translation>Modbus-TCP-Master einstellen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>connect</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>Connection status</source>
        <translation>Verbindungsstatus</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>automatic connection</source>
        <translation>automatisch verbinden</translation>
    </message>
    <message>
        <source>set up</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>Read Endian</source>
        <translation>Byte-Reihenfolge Lesen</translation>
    </message>
    <message>
        <source>Write Endian</source>
        <translation>Byte-Reihenfolge Schreiben</translation>
    </message>
    <message>
        <source>Connect timeout</source>
        <translation>Wartezeit Verbindung</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Slave IP</source>
        <translation>Slave-IP</translation>
    </message>
    <message>
        <source>Slave id</source>
        <translation>Slave-ID</translation>
    </message>
    <message>
        <source>Slave port</source>
        <translation>Slave-Port</translation>
    </message>
    <message>
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Timeout</source>
        <translation>Wartezeit</translation>
    </message>
    <message>
        <source>Failed to get mtcp_master.xml file.</source>
        <translation>Datei mtcp_master.xml konnte nicht geholt werden.</translation>
    </message>
    <message>
        <source>Failed to read mtcp_master.xml file.</source>
        <translation>Datei mtcp_master.xml konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Failed to write mtcp_master.xml file.</source>
        <translation>Datei mtcp_master.xml konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Failed to send mtcp_master.xml file.</source>
        <translation>Datei mtcp_master.xml konnte nicht gesendet werden.</translation>
    </message>
    <message>
        <source>Are you sure to save?</source>
        <translation>Wirklich speichern?</translation>
    </message>
    <message>
        <source>%1 cannot be empty!</source>
        <translation>%1 darf nicht leer sein!</translation>
    </message>
    <message>
        <source>Successfully saved.</source>
        <translation>Gespeichert.</translation>
    </message>
    <message>
        <source>IP address format is wrong!</source>
        <translation>Das ist keine IP-Adresse!</translation>
    </message>
    <message>
        <source>The port number is already occupied!</source>
        <translation>Die Portnummer ist schon belegt!</translation>
    </message>
</context>
<context>
    <name>MtcpSlaveSetting</name>
    <message>
        <source>ModbusTcp Slave Setting</source>
        <translation>Modbus-TCP-Slave einstellen</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>Communicate performance</source>
        <translation>Kommunikationsleistung</translation>
    </message>
</context>
<context>
    <name>PageBase</name>
    <message>
        <source>Failed to get file.</source>
        <translation>Datei konnte nicht geholt werden.</translation>
    </message>
    <message>
        <source>Loaded now. Look at the settings, then save.</source>
        <translation>Jetzt geladen. Sehen Sie die Einstellungen an, dann speichern Sie.</translation>
    </message>
    <message>
        <source>Are you sure to save?</source>
        <translation>Wirklich speichern?</translation>
    </message>
    <message>
        <source>Please turn off the servo first!</source>
        <translation>Schalten Sie zuerst den Servo aus!</translation>
    </message>
    <message>
        <source>Save successfully, Are you sure to restart robot to make it effect?</source>
        <translation>Gespeichert. Den Roboter jetzt neu starten, damit es wirksam wird?</translation>
    </message>
    <message>
        <source>Please close and reopen the teaching pendant.</source>
        <translation>Bitte schließen Sie das Bediengerät und öffnen Sie es neu.</translation>
    </message>
    <message>
        <source>Please manually power off and restart the robot!</source>
        <translation>Schalten Sie den Roboter von Hand aus und wieder ein!</translation>
    </message>
    <message>
        <source>Failed to read file.</source>
        <translation>Datei konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Failed to write file.</source>
        <translation>Datei konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Failed to send file.</source>
        <translation>Datei konnte nicht gesendet werden.</translation>
    </message>
    <message>
        <source>override.cfg was changed on the controller since it was read. It has been loaded again.</source>
        <translation>override.cfg wurde auf der Steuerung geändert, seit es gelesen wurde. Es wurde neu geladen.</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>Changed on the controller since it was read</source>
        <translation>Seit dem Lesen auf der Steuerung geändert</translation>
    </message>
    <message>
        <source>Changed on the controller since it was read. Reload?</source>
        <translation>Seit dem Lesen auf der Steuerung geändert. Neu laden?</translation>
    </message>
</context>
<context>
    <name>PageHead</name>
    <message>
        <source>Not read from the controller: these are not its settings</source>
        <translation>Nicht von der Steuerung gelesen: Das sind nicht ihre Einstellungen</translation>
    </message>
    <message>
        <source>Read from the controller %1</source>
        <translation>Von Steuerung gelesen: %1</translation>
    </message>
</context>
<context>
    <name>Pfb_PfnSettingWidget</name>
    <message>
        <source>Profinet Slave Setting</source>
        <translation>PROFINET-Slave einstellen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>connect</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>Connect status</source>
        <translation>Verbindungsstatus</translation>
    </message>
    <message>
        <source>Communicate performance</source>
        <translation>Kommunikationsleistung</translation>
    </message>
    <message>
        <source>set up</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Endian</source>
        <translation>Byte-Reihenfolge</translation>
    </message>
    <message>
        <source>Detects connected switch</source>
        <translation>Erkennung der Verbindung</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>AUS</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>EIN</translation>
    </message>
    <message>
        <source>Are you sure to save?</source>
        <translation>Wirklich speichern?</translation>
    </message>
</context>
<context>
    <name>PfnMasterSetting</name>
    <message>
        <source>Profinet Master Setting</source>
        <translation>PROFINET-Master einstellen</translation>
    </message>
    <message>
        <source>Failed to get pfn_master.xml file.</source>
        <translation>Datei pfn_master.xml konnte nicht geholt werden.</translation>
    </message>
    <message>
        <source>Failed to read pfn_master.xml file.</source>
        <translation>Datei pfn_master.xml konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Failed to write pnm_master.xml file.</source>
        <translation>Datei pnm_master.xml konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Failed to send pnm_master.xml file.</source>
        <translation>Datei pnm_master.xml konnte nicht gesendet werden.</translation>
    </message>
</context>
<context>
    <name>ProfiSAFESlaveWidget</name>
    <message>
        <source>ProfiSAFE Slave Setting</source>
        <translation>PROFIsafe-Slave einstellen</translation>
    </message>
    <message>
        <source>Device status</source>
        <translation>Gerätezustand</translation>
    </message>
    <message>
        <source>Error confirmation</source>
        <translation>Fehler quittieren</translation>
    </message>
    <message>
        <source>Emg stop reset</source>
        <translation>Not-Halt zurücksetzen</translation>
    </message>
    <message>
        <source>Feed voltage mode</source>
        <translation>Art der Versorgungsspannung</translation>
    </message>
    <message>
        <source>not used</source>
        <translation>nicht verwendet</translation>
    </message>
    <message>
        <source>Protocol data</source>
        <translation>Protokolldaten</translation>
    </message>
    <message>
        <source>from KRC</source>
        <translation>von KRC</translation>
    </message>
    <message>
        <source>from external plc</source>
        <translation>von externer SPS</translation>
    </message>
    <message>
        <source>Desc</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Ausgang</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>Eingang</translation>
    </message>
</context>
<context>
    <name>ProgressDialog</name>
    <message>
        <source>Dialog</source>
        <translation>Dialog</translation>
    </message>
    <message>
        <source>Please waitting ...</source>
        <translation>Bitte warten ...</translation>
    </message>
</context>
<context>
    <name>UsbImport</name>
    <message>
        <source>... and %1 more</source>
        <translation>... und %1 weitere</translation>
    </message>
    <message>
        <source>These files could not be put back:
%1</source>
        <translation>Diese Dateien konnten nicht zurückgelegt werden:
%1</translation>
    </message>
    <message>
        <source>The former files were put back.</source>
        <translation>Die früheren Dateien wurden zurückgelegt.</translation>
    </message>
    <message>
        <source>These files were saved since by somebody else and stay as they are:
%1</source>
        <translation>Diese Dateien wurden inzwischen von anderer Seite gespeichert und bleiben, wie sie sind:
%1</translation>
    </message>
    <message>
        <source>Comparing...</source>
        <translation>Vergleich läuft ...</translation>
    </message>
    <message>
        <source>Its bus switches cannot be read.</source>
        <translation>Die Bus-Schalter darin können nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be imported:
%2</source>
        <translation>Der Ordner %1 kann nicht importiert werden:
%2</translation>
    </message>
    <message>
        <source>The folder %1 is not a whole export:
it brings %2 of %3 files. The others stay as they are.
Import it all the same?</source>
        <translation>Der Ordner %1 ist kein vollständiger Export:
Er bringt %2 von %3 Dateien. Die übrigen bleiben, wie sie sind.
Trotzdem importieren?</translation>
    </message>
    <message>
        <source>Importing...</source>
        <translation>Import läuft ...</translation>
    </message>
    <message>
        <source>Import file failed!</source>
        <translation>Import fehlgeschlagen!</translation>
    </message>
    <message>
        <source>Nothing was changed on the controller.</source>
        <translation>Auf der Steuerung wurde nichts geändert.</translation>
    </message>
    <message>
        <source>Try again to put the former files back?</source>
        <translation>Noch einmal versuchen, die früheren Dateien zurückzulegen?</translation>
    </message>
    <message>
        <source>The controller holds a mixture of former and imported files.
It should not be restarted before they are put back with Import.</source>
        <translation>Auf der Steuerung liegen frühere und importierte Dateien gemischt.
Sie sollte nicht neu starten, bevor sie mit „Importieren“ zurückgelegt sind.</translation>
    </message>
    <message>
        <source>What an earlier import has replaced cannot be read now.
Please try again.</source>
        <translation>Was ein früherer Import ersetzt hat, kann jetzt nicht gelesen werden.
Bitte versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>An earlier import was neither finished nor undone.
Put the former files of the controller back now?
A new import gives them up once it is sent.</source>
        <translation>Ein früherer Import wurde weder beendet noch rückgängig gemacht.
Die früheren Dateien der Steuerung jetzt zurücklegen?
Ein neuer Import gibt sie auf, sobald er gesendet ist.</translation>
    </message>
    <message>
        <source>The USB drive was removed.</source>
        <translation>Das USB-Laufwerk wurde abgezogen.</translation>
    </message>
    <message>
        <source>The file %1 could not be read.</source>
        <translation>Die Datei %1 konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The file %1 could not be fetched from the controller.</source>
        <translation>Die Datei %1 konnte nicht von der Steuerung geholt werden.</translation>
    </message>
    <message>
        <source>The file %1 of the pendant could not be written.</source>
        <translation>Die Datei %1 des Bediengeräts konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The file %1 of the controller has changed meanwhile.</source>
        <translation>Die Datei %1 der Steuerung hat sich inzwischen geändert.</translation>
    </message>
    <message>
        <source>The file %1 could not be sent to the controller.</source>
        <translation>Die Datei %1 konnte nicht an die Steuerung gesendet werden.</translation>
    </message>
    <message>
        <source>Please turn off the servo first!</source>
        <translation>Schalten Sie zuerst den Servo aus!</translation>
    </message>
    <message>
        <source>The pendant&apos;s copy of %1 has changed meanwhile.</source>
        <translation>Die Kopie von %1 auf dem Bediengerät hat sich inzwischen geändert.</translation>
    </message>
    <message>
        <source>The files of the controller take effect with the next restart.</source>
        <translation>Die Dateien der Steuerung werden mit dem nächsten Neustart wirksam.</translation>
    </message>
</context>
<context>
    <name>UsbTransfer</name>
    <message>
        <source>Another pendant is importing or exporting in the same directory.</source>
        <translation>Ein anderes Bediengerät importiert oder exportiert gerade im selben Ordner.</translation>
    </message>
    <message>
        <source>The last import or export is still coming to its end.
Please try again in a moment.</source>
        <translation>Der letzte Import oder Export ist noch nicht ganz zu Ende.
Bitte versuchen Sie es gleich noch einmal.</translation>
    </message>
    <message>
        <source>An earlier import was neither finished nor undone.
With Import the former files can be put back.
Save the bus switches all the same?</source>
        <translation>Ein früherer Import wurde weder beendet noch rückgängig gemacht.
Mit „Importieren“ können die früheren Dateien zurückgelegt werden.
Die Bus-Schalter trotzdem speichern?</translation>
    </message>
    <message>
        <source>No exported bus configuration found on the USB drive!</source>
        <translation>Auf dem USB-Laufwerk wurde keine exportierte Bus-Konfiguration gefunden!</translation>
    </message>
</context>
</TS>
