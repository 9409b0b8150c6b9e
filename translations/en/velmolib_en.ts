<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>AcceptFilter</name>
    <message>
        <source>Accept(1) or reject(0) notes</source>
        <translation>Accept(1) or reject(0) notes</translation>
    </message>
    <message>
        <source>Accept filter|If enabled and set to false, coin acceptors and BNVs shall reject all coins and notes</source>
        <translation>Accept filter|If enabled and set to false, coin acceptors and BNVs shall reject all coins and notes.</translation>
    </message>
</context>
<context>
    <name>AttemptsFilter</name>
    <message>
        <source>Denomination</source>
        <translation>Denomination</translation>
    </message>
    <message>
        <source>Accept tries</source>
        <translation>Accept tries</translation>
    </message>
    <message>
        <source>Max attempts filter|Antiphishing filter. If BNV rejects note given number of times, the serviceshall reject this note &apos;till the end of the session even if BNV shall recognize it.</source>
        <translation>Max attempts filter|Anti-fishing filter. If the BNV rejects a note the given number of times, the service shall reject this note till the end of the session even if the BNV recognizes it.</translation>
    </message>
</context>
<context>
    <name>DenomCountFilter</name>
    <message>
        <source>Denomination</source>
        <translation>Denomination</translation>
    </message>
    <message>
        <source>Max notes/coins count</source>
        <translation>Max notes/coins count</translation>
    </message>
    <message>
        <source>Denomination count filter|Define max count of notes or coins accepted via session.</source>
        <translation>Denomination count filter|Defines the max count of notes or coins accepted in a session.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>wait money</source>
        <translation>waiting for money</translation>
    </message>
    <message>
        <source>jamming</source>
        <translation>jammed</translation>
    </message>
    <message>
        <source>money accepted</source>
        <translation>money accepted</translation>
    </message>
    <message>
        <source>money accepting</source>
        <translation>accepting money</translation>
    </message>
    <message>
        <source>accepting money in stacker</source>
        <translation>moving money into stacker</translation>
    </message>
    <message>
        <source>money accepted in stacker</source>
        <translation>money in stacker</translation>
    </message>
    <message>
        <source>disabled money acceptinng or summ overflow</source>
        <translation>money accepting disabled or sum exceeded</translation>
    </message>
    <message>
        <source>money reject</source>
        <translation>money rejected</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>waiting</translation>
    </message>
    <message>
        <source>unknown state</source>
        <translation>unknown state</translation>
    </message>
    <message>
        <source>DeviceId: %1,ThreadId: %2</source>
        <translation>DeviceId: %1,ThreadId: %2</translation>
    </message>
    <message>
        <source>Name: %1</source>
        <translation>Name: %1</translation>
    </message>
    <message>
        <source>Activity: %1</source>
        <translation>Activity: %1</translation>
    </message>
    <message>
        <source>enabled</source>
        <translation>enabled</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>disabled</translation>
    </message>
    <message>
        <source>Critical error: </source>
        <translation>Critical error: </translation>
    </message>
    <message>
        <source>no description</source>
        <translation>no description</translation>
    </message>
    <message>
        <source>stacker not present</source>
        <translation>stacker not present</translation>
    </message>
    <message>
        <source>stacker is full</source>
        <translation>stacker is full</translation>
    </message>
    <message>
        <source>Status: </source>
        <translation>Status: </translation>
    </message>
    <message>
        <source>status description:</source>
        <translation>Status description: </translation>
    </message>
    <message>
        <source>Money accepting is disabled</source>
        <translation>Money accepting is disabled</translation>
    </message>
    <message>
        <source>Input money or coin</source>
        <translation>Input money or coin</translation>
    </message>
    <message>
        <source>Input money</source>
        <translation>Input money</translation>
    </message>
    <message>
        <source>Input coin</source>
        <translation>Input coin</translation>
    </message>
    <message>
        <source>Error status unknown</source>
        <translation>Error status unknown</translation>
    </message>
    <message>
        <source>Wait...</source>
        <translation>Wait...</translation>
    </message>
    <message>
        <source>Device state list is empty</source>
        <translation>Device state list is empty</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unknown</translation>
    </message>
</context>
<context>
    <name>SessionSumFilter</name>
    <message>
        <source>Maximum session sum</source>
        <translation>Maximum session sum</translation>
    </message>
    <message>
        <source>Max session sum filter|Sets maximum sum for the session</source>
        <translation>Max session sum filter|Sets the maximum sum for the session.</translation>
    </message>
</context>
<context>
    <name>SettingDescription</name>
    <message>
        <source>Accept all</source>
        <translation>Accept all</translation>
    </message>
    <message>
        <source>Whether all notes and coins are accepted.</source>
        <translation>Whether all notes and coins are accepted.</translation>
    </message>
    <message>
        <source>Maximum sum</source>
        <translation>Maximum sum</translation>
    </message>
    <message>
        <source>The maximum sum, in the unit that the service uses.</source>
        <translation>The maximum sum, in the unit that the service uses.</translation>
    </message>
    <message>
        <source>Statistics reset mode</source>
        <translation>Statistics reset mode</translation>
    </message>
    <message>
        <source>How the service resets its statistics, as the service&apos;s own number.</source>
        <translation>How the service resets its statistics, as the service&apos;s own number.</translation>
    </message>
    <message>
        <source>Anti-fishing limits</source>
        <translation>Anti-fishing limits</translation>
    </message>
    <message>
        <source>How many rejections of a denomination a session allows.</source>
        <translation>How many rejections of a denomination a session allows.</translation>
    </message>
    <message>
        <source>Port log</source>
        <translation>Port log</translation>
    </message>
    <message>
        <source>Whether the traffic on the devices&apos; ports is logged.</source>
        <translation>Whether the traffic on the devices&apos; ports is logged.</translation>
    </message>
    <message>
        <source>Number of devices</source>
        <translation>Number of devices</translation>
    </message>
    <message>
        <source>How many devices the service drives: those with an index below it.</source>
        <translation>How many devices the service drives: those with an index below it.</translation>
    </message>
    <message>
        <source>Idle reset timeout</source>
        <translation>Idle reset timeout</translation>
    </message>
    <message>
        <source>Idle time after which the service resets, in the service&apos;s own unit.</source>
        <translation>Idle time after which the service resets, in the service&apos;s own unit.</translation>
    </message>
    <message>
        <source>Route map</source>
        <translation>Route map</translation>
    </message>
    <message>
        <source>Where the service sends notes and coins of each kind.</source>
        <translation>Where the service sends notes and coins of each kind.</translation>
    </message>
    <message>
        <source>Port log of the device</source>
        <translation>Port log of the device</translation>
    </message>
    <message>
        <source>Whether the traffic on this device&apos;s port is logged; a list that is written anew has the common switch.</source>
        <translation>Whether the traffic on this device&apos;s port is logged; a list that is written anew has the common switch.</translation>
    </message>
    <message>
        <source>Response time</source>
        <translation>Response time</translation>
    </message>
    <message>
        <source>How long an answer of the device may take, in the protocol&apos;s own unit.</source>
        <translation>How long an answer of the device may take, in the protocol&apos;s own unit.</translation>
    </message>
    <message>
        <source>Polling interval</source>
        <translation>Polling interval</translation>
    </message>
    <message>
        <source>How often the device is asked for its state, in the protocol&apos;s own unit.</source>
        <translation>How often the device is asked for its state, in the protocol&apos;s own unit.</translation>
    </message>
    <message>
        <source>Bill table interval</source>
        <translation>Bill table interval</translation>
    </message>
    <message>
        <source>Pace of reading the device&apos;s table of notes, in the protocol&apos;s own unit.</source>
        <translation>Pace of reading the device&apos;s table of notes, in the protocol&apos;s own unit.</translation>
    </message>
    <message>
        <source>Reset interval</source>
        <translation>Reset interval</translation>
    </message>
    <message>
        <source>Pace of resetting the device, in the protocol&apos;s own unit.</source>
        <translation>Pace of resetting the device, in the protocol&apos;s own unit.</translation>
    </message>
    <message>
        <source>Rest interval</source>
        <translation>Rest interval</translation>
    </message>
    <message>
        <source>Rest between two messages to the device, in the protocol&apos;s own unit.</source>
        <translation>Rest between two messages to the device, in the protocol&apos;s own unit.</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>The device model, as its number in the catalogue.</source>
        <translation>The device model, as its number in the catalogue.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>What the device is called.</source>
        <translation>What the device is called.</translation>
    </message>
    <message>
        <source>Terminal identifier</source>
        <translation>Terminal identifier</translation>
    </message>
    <message>
        <source>The identifier of the card terminal.</source>
        <translation>The identifier of the card terminal.</translation>
    </message>
    <message>
        <source>Acknowledgement timeout</source>
        <translation>Acknowledgement timeout</translation>
    </message>
    <message>
        <source>How long an acknowledgement may take, in the protocol&apos;s own unit.</source>
        <translation>How long an acknowledgement may take, in the protocol&apos;s own unit.</translation>
    </message>
    <message>
        <source>Packet timeout</source>
        <translation>Packet timeout</translation>
    </message>
    <message>
        <source>How long a packet may take, in the protocol&apos;s own unit.</source>
        <translation>How long a packet may take, in the protocol&apos;s own unit.</translation>
    </message>
    <message>
        <source>Negative acknowledgements</source>
        <translation>Negative acknowledgements</translation>
    </message>
    <message>
        <source>After how many negative acknowledgements a packet is given up.</source>
        <translation>After how many negative acknowledgements a packet is given up.</translation>
    </message>
    <message>
        <source>Packet size</source>
        <translation>Packet size</translation>
    </message>
    <message>
        <source>The largest packet, in bytes.</source>
        <translation>The largest packet, in bytes.</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Interface</translation>
    </message>
    <message>
        <source>How the device is connected: a serial port, or TCP.</source>
        <translation>How the device is connected: a serial port, or TCP.</translation>
    </message>
    <message>
        <source>TCP host</source>
        <translation>TCP host</translation>
    </message>
    <message>
        <source>Name or address of the host that answers for the device.</source>
        <translation>Name or address of the host that answers for the device.</translation>
    </message>
    <message>
        <source>TCP port</source>
        <translation>TCP port</translation>
    </message>
    <message>
        <source>TCP port of the device.</source>
        <translation>TCP port of the device.</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>Serial port</translation>
    </message>
    <message>
        <source>The serial port that the device is attached to.</source>
        <translation>The serial port that the device is attached to.</translation>
    </message>
    <message>
        <source>Baud rate</source>
        <translation>Baud rate</translation>
    </message>
    <message>
        <source>Speed of the serial port, in bits per second.</source>
        <translation>Speed of the serial port, in bits per second.</translation>
    </message>
    <message>
        <source>Flow control</source>
        <translation>Flow control</translation>
    </message>
    <message>
        <source>Who stops the serial line: the hardware, characters in the line, or none.</source>
        <translation>Who stops the serial line: the hardware, characters in the line, or none.</translation>
    </message>
    <message>
        <source>Parity</source>
        <translation>Parity</translation>
    </message>
    <message>
        <source>Parity of the serial line.</source>
        <translation>Parity of the serial line.</translation>
    </message>
    <message>
        <source>Data bits</source>
        <translation>Data bits</translation>
    </message>
    <message>
        <source>Data bits of a character on the serial line.</source>
        <translation>Data bits of a character on the serial line.</translation>
    </message>
    <message>
        <source>Stop bits</source>
        <translation>Stop bits</translation>
    </message>
    <message>
        <source>Stop bits of a character on the serial line; 3 means one and a half.</source>
        <translation>Stop bits of a character on the serial line; 3 means one and a half.</translation>
    </message>
</context>
</TS>
