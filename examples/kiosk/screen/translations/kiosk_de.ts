<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Main</name>
    <message>
        <source>Payment</source>
        <translation>Zahlung</translation>
    </message>
    <message>
        <source>To set a PIN: write 4 to 12 digits into a file and start with --pin-file FILE.</source>
        <translation>Um eine PIN festzulegen: 4 bis 12 Ziffern in eine Datei schreiben und mit --pin-file DATEI starten.</translation>
    </message>
</context>
<context>
    <name>ServiceScreen</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
</context>
</TS>
