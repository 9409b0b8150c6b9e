<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>AcceptFilter</name>
    <message>
        <source>Accept(1) or reject(0) notes</source>
        <translation>Scheine annehmen (1) oder ablehnen (0)</translation>
    </message>
    <message>
        <source>Accept filter|If enabled and set to false, coin acceptors and BNVs shall reject all coins and notes</source>
        <translation>Annahmefilter|Ist der Filter aktiv und der Wert 0, lehnen Münzprüfer und Geldscheinprüfer alle Münzen und Scheine ab.</translation>
    </message>
</context>
<context>
    <name>AttemptsFilter</name>
    <message>
        <source>Denomination</source>
        <translation>Nennwert</translation>
    </message>
    <message>
        <source>Accept tries</source>
        <translation>Annahmeversuche</translation>
    </message>
    <message>
        <source>Max attempts filter|Antiphishing filter. If BNV rejects note given number of times, the serviceshall reject this note &apos;till the end of the session even if BNV shall recognize it.</source>
        <translation>Versuchsfilter|Fishing-Schutz. Weist der Geldscheinprüfer einen Schein so oft ab wie angegeben, lehnt der Dienst diesen Schein bis zum Ende der Sitzung ab, auch wenn der Prüfer ihn dann erkennt.</translation>
    </message>
</context>
<context>
    <name>DenomCountFilter</name>
    <message>
        <source>Denomination</source>
        <translation>Nennwert</translation>
    </message>
    <message>
        <source>Max notes/coins count</source>
        <translation>Höchstzahl der Scheine oder Münzen</translation>
    </message>
    <message>
        <source>Denomination count filter|Define max count of notes or coins accepted via session.</source>
        <translation>Anzahlfilter|Legt fest, wie viele Scheine oder Münzen eines Nennwerts eine Sitzung höchstens annimmt.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>wait money</source>
        <translation>wartet auf Geld</translation>
    </message>
    <message>
        <source>jamming</source>
        <translation>verklemmt</translation>
    </message>
    <message>
        <source>money accepted</source>
        <translation>Geld angenommen</translation>
    </message>
    <message>
        <source>money accepting</source>
        <translation>Geld wird angenommen</translation>
    </message>
    <message>
        <source>accepting money in stacker</source>
        <translation>Geld wird eingestapelt</translation>
    </message>
    <message>
        <source>money accepted in stacker</source>
        <translation>Geld eingestapelt</translation>
    </message>
    <message>
        <source>disabled money acceptinng or summ overflow</source>
        <translation>Geldannahme gesperrt oder Summe überschritten</translation>
    </message>
    <message>
        <source>money reject</source>
        <translation>Geld abgewiesen</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>wartet</translation>
    </message>
    <message>
        <source>unknown state</source>
        <translation>unbekannter Zustand</translation>
    </message>
    <message>
        <source>DeviceId: %1,ThreadId: %2</source>
        <translation>Gerät: %1, Thread: %2</translation>
    </message>
    <message>
        <source>Name: %1</source>
        <translation>Name: %1</translation>
    </message>
    <message>
        <source>Activity: %1</source>
        <translation>Betrieb: %1</translation>
    </message>
    <message>
        <source>enabled</source>
        <translation>freigegeben</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>gesperrt</translation>
    </message>
    <message>
        <source>Critical error: </source>
        <translation>Kritischer Fehler: </translation>
    </message>
    <message>
        <source>no description</source>
        <translation>keine Beschreibung</translation>
    </message>
    <message>
        <source>stacker not present</source>
        <translation>Stapler fehlt</translation>
    </message>
    <message>
        <source>stacker is full</source>
        <translation>Stapler ist voll</translation>
    </message>
    <message>
        <source>Status: </source>
        <translation>Zustand: </translation>
    </message>
    <message>
        <source>status description:</source>
        <translation>Beschreibung des Zustands: </translation>
    </message>
    <message>
        <source>Money accepting is disabled</source>
        <translation>Die Geldannahme ist gesperrt</translation>
    </message>
    <message>
        <source>Input money or coin</source>
        <translation>Bitte Scheine oder Münzen einwerfen</translation>
    </message>
    <message>
        <source>Input money</source>
        <translation>Bitte Scheine einführen</translation>
    </message>
    <message>
        <source>Input coin</source>
        <translation>Bitte Münzen einwerfen</translation>
    </message>
    <message>
        <source>Error status unknown</source>
        <translation>Fehler: Zustand unbekannt</translation>
    </message>
    <message>
        <source>Wait...</source>
        <translation>Bitte warten...</translation>
    </message>
    <message>
        <source>Device state list is empty</source>
        <translation>Die Liste der Gerätezustände ist leer</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
</context>
<context>
    <name>SessionSumFilter</name>
    <message>
        <source>Maximum session sum</source>
        <translation>Höchstsumme der Sitzung</translation>
    </message>
    <message>
        <source>Max session sum filter|Sets maximum sum for the session</source>
        <translation>Summenfilter|Legt die Höchstsumme der Sitzung fest.</translation>
    </message>
</context>
<context>
    <name>SettingDescription</name>
    <message>
        <source>Accept all</source>
        <translation>Alles annehmen</translation>
    </message>
    <message>
        <source>Whether all notes and coins are accepted.</source>
        <translation>Ob alle Scheine und Münzen angenommen werden.</translation>
    </message>
    <message>
        <source>Maximum sum</source>
        <translation>Höchstsumme</translation>
    </message>
    <message>
        <source>The maximum sum, in the unit that the service uses.</source>
        <translation>Die Höchstsumme, in der Einheit des Dienstes.</translation>
    </message>
    <message>
        <source>Statistics reset mode</source>
        <translation>Art des Statistik-Resets</translation>
    </message>
    <message>
        <source>How the service resets its statistics, as the service&apos;s own number.</source>
        <translation>Wie der Dienst seine Statistik zurücksetzt, als Nummer des Dienstes.</translation>
    </message>
    <message>
        <source>Anti-fishing limits</source>
        <translation>Grenzen des Fishing-Schutzes</translation>
    </message>
    <message>
        <source>How many rejections of a denomination a session allows.</source>
        <translation>Wie viele Abweisungen eines Nennwerts eine Sitzung zulässt.</translation>
    </message>
    <message>
        <source>Port log</source>
        <translation>Portprotokoll</translation>
    </message>
    <message>
        <source>Whether the traffic on the devices&apos; ports is logged.</source>
        <translation>Ob der Datenverkehr an den Ports der Geräte protokolliert wird.</translation>
    </message>
    <message>
        <source>Number of devices</source>
        <translation>Anzahl der Geräte</translation>
    </message>
    <message>
        <source>How many devices the service drives: those with an index below it.</source>
        <translation>Wie viele Geräte der Dienst ansteuert: die mit einem kleineren Index.</translation>
    </message>
    <message>
        <source>Idle reset timeout</source>
        <translation>Leerlaufzeit bis zum Reset</translation>
    </message>
    <message>
        <source>Idle time after which the service resets, in the service&apos;s own unit.</source>
        <translation>Leerlaufzeit, nach der der Dienst einen Reset ausführt, in der Einheit des Dienstes.</translation>
    </message>
    <message>
        <source>Route map</source>
        <translation>Routentabelle</translation>
    </message>
    <message>
        <source>Where the service sends notes and coins of each kind.</source>
        <translation>Wohin der Dienst Scheine und Münzen jeder Art leitet.</translation>
    </message>
    <message>
        <source>Port log of the device</source>
        <translation>Portprotokoll des Geräts</translation>
    </message>
    <message>
        <source>Whether the traffic on this device&apos;s port is logged; a list that is written anew has the common switch.</source>
        <translation>Ob der Datenverkehr am Port dieses Geräts protokolliert wird; in einer neu geschriebenen Liste steht der gemeinsame Schalter.</translation>
    </message>
    <message>
        <source>Response time</source>
        <translation>Antwortzeit</translation>
    </message>
    <message>
        <source>How long an answer of the device may take, in the protocol&apos;s own unit.</source>
        <translation>Wie lange eine Antwort des Geräts dauern darf, in der Einheit des Protokolls.</translation>
    </message>
    <message>
        <source>Polling interval</source>
        <translation>Abfrageintervall</translation>
    </message>
    <message>
        <source>How often the device is asked for its state, in the protocol&apos;s own unit.</source>
        <translation>Wie oft der Zustand des Geräts abgefragt wird, in der Einheit des Protokolls.</translation>
    </message>
    <message>
        <source>Bill table interval</source>
        <translation>Intervall der Scheintabelle</translation>
    </message>
    <message>
        <source>Pace of reading the device&apos;s table of notes, in the protocol&apos;s own unit.</source>
        <translation>In welchen Abständen die Scheintabelle des Geräts gelesen wird, in der Einheit des Protokolls.</translation>
    </message>
    <message>
        <source>Reset interval</source>
        <translation>Reset-Intervall</translation>
    </message>
    <message>
        <source>Pace of resetting the device, in the protocol&apos;s own unit.</source>
        <translation>In welchen Abständen das Gerät zurückgesetzt wird, in der Einheit des Protokolls.</translation>
    </message>
    <message>
        <source>Rest interval</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Rest between two messages to the device, in the protocol&apos;s own unit.</source>
        <translation>Pause zwischen zwei Nachrichten an das Gerät, in der Einheit des Protokolls.</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>The device model, as its number in the catalogue.</source>
        <translation>Das Gerätemodell, als seine Nummer im Katalog.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>What the device is called.</source>
        <translation>Wie das Gerät heißt.</translation>
    </message>
    <message>
        <source>Terminal identifier</source>
        <translation>Terminalkennung</translation>
    </message>
    <message>
        <source>The identifier of the card terminal.</source>
        <translation>Die Kennung des Kartenterminals.</translation>
    </message>
    <message>
        <source>Acknowledgement timeout</source>
        <translation>Wartezeit auf Bestätigung</translation>
    </message>
    <message>
        <source>How long an acknowledgement may take, in the protocol&apos;s own unit.</source>
        <translation>Wie lange eine Bestätigung dauern darf, in der Einheit des Protokolls.</translation>
    </message>
    <message>
        <source>Packet timeout</source>
        <translation>Wartezeit auf Paket</translation>
    </message>
    <message>
        <source>How long a packet may take, in the protocol&apos;s own unit.</source>
        <translation>Wie lange ein Paket dauern darf, in der Einheit des Protokolls.</translation>
    </message>
    <message>
        <source>Negative acknowledgements</source>
        <translation>Negative Bestätigungen</translation>
    </message>
    <message>
        <source>After how many negative acknowledgements a packet is given up.</source>
        <translation>Nach wie vielen negativen Bestätigungen ein Paket aufgegeben wird.</translation>
    </message>
    <message>
        <source>Packet size</source>
        <translation>Paketgröße</translation>
    </message>
    <message>
        <source>The largest packet, in bytes.</source>
        <translation>Das größte Paket, in Byte.</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Anschluss</translation>
    </message>
    <message>
        <source>How the device is connected: a serial port, or TCP.</source>
        <translation>Wie das Gerät angeschlossen ist: serieller Port oder TCP.</translation>
    </message>
    <message>
        <source>TCP host</source>
        <translation>TCP-Host</translation>
    </message>
    <message>
        <source>Name or address of the host that answers for the device.</source>
        <translation>Name oder Adresse des Hosts, der für das Gerät antwortet.</translation>
    </message>
    <message>
        <source>TCP port</source>
        <translation>TCP-Port</translation>
    </message>
    <message>
        <source>TCP port of the device.</source>
        <translation>TCP-Port des Geräts.</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>Serieller Port</translation>
    </message>
    <message>
        <source>The serial port that the device is attached to.</source>
        <translation>Der serielle Port, an dem das Gerät angeschlossen ist.</translation>
    </message>
    <message>
        <source>Baud rate</source>
        <translation>Baudrate</translation>
    </message>
    <message>
        <source>Speed of the serial port, in bits per second.</source>
        <translation>Geschwindigkeit des seriellen Ports, in Bit pro Sekunde.</translation>
    </message>
    <message>
        <source>Flow control</source>
        <translation>Flusssteuerung</translation>
    </message>
    <message>
        <source>Who stops the serial line: the hardware, characters in the line, or none.</source>
        <translation>Wer die serielle Leitung anhält: die Hardware, Zeichen in der Leitung oder niemand.</translation>
    </message>
    <message>
        <source>Parity</source>
        <translation>Parität</translation>
    </message>
    <message>
        <source>Parity of the serial line.</source>
        <translation>Parität der seriellen Leitung.</translation>
    </message>
    <message>
        <source>Data bits</source>
        <translation>Datenbits</translation>
    </message>
    <message>
        <source>Data bits of a character on the serial line.</source>
        <translation>Datenbits eines Zeichens auf der seriellen Leitung.</translation>
    </message>
    <message>
        <source>Stop bits</source>
        <translation>Stoppbits</translation>
    </message>
    <message>
        <source>Stop bits of a character on the serial line; 3 means one and a half.</source>
        <translation>Stoppbits eines Zeichens auf der seriellen Leitung; 3 bedeutet anderthalb.</translation>
    </message>
</context>
</TS>
