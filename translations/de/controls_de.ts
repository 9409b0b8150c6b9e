<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>CassetteTable</name>
    <message>
        <source>Place</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Nennwert</translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Stück</translation>
    </message>
    <message>
        <source>Rejected</source>
        <translation>Ausgesondert</translation>
    </message>
    <message>
        <source>Cassette</source>
        <translation>Kassette</translation>
    </message>
    <message>
        <source>Rejects</source>
        <translation>Ausschuss</translation>
    </message>
    <message>
        <source>Channel %1</source>
        <translation>Kanal %1</translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation>mind. %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1–%2</translation>
    </message>
    <message>
        <source>Hopper %1</source>
        <translation>Hopper %1</translation>
    </message>
    <message>
        <source>Cassette %1</source>
        <translation>Kassette %1</translation>
    </message>
    <message>
        <source>Content by the log</source>
        <translation>Inhalt laut Protokoll</translation>
    </message>
    <message>
        <source>Content by the device</source>
        <translation>Inhalt laut Gerät</translation>
    </message>
</context>
<context>
    <name>DeviceCard</name>
    <message>
        <source>switched off</source>
        <translation>gesperrt</translation>
    </message>
    <message>
        <source>Stuck: %1, since %2</source>
        <translation>Stecken geblieben: %1, seit %2</translation>
    </message>
    <message>
        <source>On its way: %1, since %2</source>
        <translation>Unterwegs: %1, seit %2</translation>
    </message>
    <message>
        <source>device %1, thread %2</source>
        <translation>Gerät %1, Thread %2</translation>
    </message>
    <message>
        <source>Inserted %1, rejected %2, returned %3</source>
        <translation>Eingegeben: %1, abgewiesen: %2, zurückgegeben: %3</translation>
    </message>
    <message>
        <source>As last reported; there is no news since.</source>
        <translation>Stand der letzten Meldung; seither nichts Neues.</translation>
    </message>
</context>
<context>
    <name>DeviceCards</name>
    <message>
        <source>Devices: %1, with faults: %2</source>
        <translation>Geräte: %1, gestört: %2</translation>
    </message>
</context>
<context>
    <name>FaultBanner</name>
    <message>
        <source>No device has a fault.</source>
        <translation>Kein Gerät ist gestört.</translation>
    </message>
    <message>
        <source>Other faults: %1</source>
        <translation>Weitere Störungen: %1</translation>
    </message>
</context>
<context>
    <name>KioskLamp</name>
    <message>
        <source>%1: on</source>
        <translation>%1: ja</translation>
    </message>
    <message>
        <source>%1: off</source>
        <translation>%1: nein</translation>
    </message>
</context>
<context>
    <name>MoneyStrip</name>
    <message>
        <source>Help: %1</source>
        <translation>Hilfe: %1</translation>
    </message>
    <message>
        <source>This kiosk gives no change.</source>
        <translation>Dieser Automat gibt kein Wechselgeld.</translation>
    </message>
    <message>
        <source>Change is paid out.</source>
        <translation>Wechselgeld wird ausgezahlt.</translation>
    </message>
    <message>
        <source>You have paid %1 too much.</source>
        <translation>Sie haben %1 zu viel bezahlt.</translation>
    </message>
    <message>
        <source>This kiosk gives no change. Please call the staff.</source>
        <translation>Dieser Automat gibt kein Wechselgeld. Bitte rufen Sie das Personal.</translation>
    </message>
    <message>
        <source>You get your change back. If it does not come, please call the staff.</source>
        <translation>Sie erhalten Ihr Wechselgeld zurück. Falls es nicht kommt, rufen Sie bitte das Personal.</translation>
    </message>
    <message>
        <source>It stays on your account.</source>
        <translation>Der Betrag bleibt auf Ihrem Konto.</translation>
    </message>
    <message>
        <source>Please ask the staff for your change.</source>
        <translation>Bitte wenden Sie sich wegen des Wechselgelds an das Personal.</translation>
    </message>
    <message>
        <source>It is recorded. Please call the staff.</source>
        <translation>Der Betrag ist aufgezeichnet. Bitte rufen Sie das Personal.</translation>
    </message>
    <message>
        <source>Please call the staff.</source>
        <translation>Bitte rufen Sie das Personal.</translation>
    </message>
    <message>
        <source>Left to pay</source>
        <translation>Noch zu zahlen</translation>
    </message>
    <message>
        <source>Paid</source>
        <translation>Bezahlt</translation>
    </message>
    <message>
        <source>Paid: %1 of %2</source>
        <translation>Bezahlt: %1 von %2</translation>
    </message>
    <message>
        <source>Paid: %1</source>
        <translation>Bezahlt: %1</translation>
    </message>
    <message>
        <source>What you overpay stays on your account.</source>
        <translation>Was Sie zu viel bezahlen, bleibt auf Ihrem Konto.</translation>
    </message>
    <message>
        <source>Before a fault you had paid %1 more. It is missing from the sum now.</source>
        <translation>Vor einer Störung hatten Sie %1 mehr bezahlt. Dieser Betrag fehlt jetzt in der Summe.</translation>
    </message>
</context>
<context>
    <name>NoteBanner</name>
    <message>
        <source>Your money is still in the device. Please call the staff.</source>
        <translation>Ihr Geld ist noch im Gerät. Bitte rufen Sie das Personal.</translation>
    </message>
    <message>
        <source>No.&#xa0;%1</source>
        <translation>Nr.&#xa0;%1</translation>
    </message>
    <message>
        <source>Help: %1</source>
        <translation>Hilfe: %1</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und noch %n</numerusform>
            <numerusform>und noch %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>OpenMoney</name>
    <message>
        <source>Settled</source>
        <translation>Erledigt</translation>
    </message>
    <message>
        <source>Really settled</source>
        <translation>Wirklich erledigt</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>No.&#xa0;%1</source>
        <translation>Nr.&#xa0;%1</translation>
    </message>
    <message>
        <source>It is stuck in the device.</source>
        <translation>Das Geld ist im Gerät stecken geblieben.</translation>
    </message>
    <message>
        <source>The service did not take it as settled.</source>
        <translation>Der Dienst hat es nicht als erledigt übernommen.</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und noch %n</numerusform>
            <numerusform>und noch %n</numerusform>
        </translation>
    </message>
    <message>
        <source>It is not known what became of it.</source>
        <translation>Was daraus wurde, ist nicht bekannt.</translation>
    </message>
    <message>
        <source>The customer had paid this much before the service was lost; it is missing from the sum.</source>
        <translation>So viel hatte der Kunde bezahlt, bevor der Dienst ausfiel; in der Summe fehlt es.</translation>
    </message>
</context>
<context>
    <name>PaymentPrompt</name>
    <message>
        <source>Help: %1</source>
        <translation>Hilfe: %1</translation>
    </message>
    <message>
        <source>Please call the staff before you leave. Insert no more money.</source>
        <translation>Bitte werfen Sie kein Geld mehr ein und rufen Sie das Personal, bevor Sie gehen.</translation>
    </message>
    <message>
        <source>Please call the staff before you leave.</source>
        <translation>Bitte rufen Sie das Personal, bevor Sie gehen.</translation>
    </message>
    <message>
        <source>What you have paid is recorded. Please call the staff.</source>
        <translation>Der bezahlte Betrag ist aufgezeichnet. Bitte rufen Sie das Personal.</translation>
    </message>
    <message>
        <source>Please use another kiosk.</source>
        <translation>Bitte nutzen Sie einen anderen Automaten.</translation>
    </message>
    <message>
        <source>Paid. Thank you!</source>
        <translation>Bezahlt. Danke!</translation>
    </message>
    <message>
        <source>This takes longer than usual.</source>
        <translation>Das dauert länger als üblich.</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Scheine</translation>
    </message>
    <message>
        <source>Coins</source>
        <translation>Münzen</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>Karte</translation>
    </message>
</context>
<context>
    <name>PinGate</name>
    <message>
        <source>There is no PIN: the screens of the staff stay closed.</source>
        <translation>Keine PIN vorhanden: Die Bildschirme des Personals bleiben geschlossen.</translation>
    </message>
    <message>
        <source>Wrong PIN. Wait %1 s.</source>
        <translation>Falsche PIN. Bitte %1 s warten.</translation>
    </message>
    <message>
        <source>Wrong PIN. Try again.</source>
        <translation>Falsche PIN. Bitte noch einmal versuchen.</translation>
    </message>
    <message>
        <source>For the staff: enter the PIN.</source>
        <translation>Für das Personal: PIN eingeben.</translation>
    </message>
    <message>
        <source>Digits entered: %1</source>
        <translation>Eingegebene Ziffern: %1</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>SettingsForm</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>%1 or more</source>
        <translation>%1 oder mehr</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>Enter a whole number: %1.</source>
        <translation>Geben Sie eine ganze Zahl ein: %1.</translation>
    </message>
    <message>
        <source>Enter a text.</source>
        <translation>Geben Sie einen Text ein.</translation>
    </message>
    <message>
        <source>“%1” is none of the choices. Choose one.</source>
        <translation>„%1“ steht nicht zur Auswahl. Wählen Sie einen der Werte.</translation>
    </message>
    <message>
        <source>The service cannot work with this.</source>
        <translation>Damit kann der Dienst nicht arbeiten.</translation>
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
        <source>this is the default</source>
        <translation>dies ist die Vorgabe</translation>
    </message>
    <message>
        <source>default: %1</source>
        <translation>Vorgabe: %1</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>leer</translation>
    </message>
    <message>
        <source>To be changed in the settings window or with “velmo settings”.</source>
        <translation>Zu ändern im Einstellungsfenster oder mit „velmo settings“.</translation>
    </message>
</context>
<context>
    <name>StateAge</name>
    <message>
        <source>No state yet.</source>
        <translation>Noch kein Zustand.</translation>
    </message>
    <message>
        <source>State of %1, %2 s old.</source>
        <translation>Zustand vom %1, %2 s alt.</translation>
    </message>
</context>
</TS>
