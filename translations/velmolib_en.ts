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
</TS>
