<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Velmo</name>
    <message numerus="yes">
        <source>%n notes (%1)</source>
        <translation>
            <numerusform>%n note (%1)</numerusform>
            <numerusform>%n notes (%1)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>In these %n sessions, A refused %1, B %2; they differ on %3.</source>
        <translation>
            <numerusform>In this %n session, A refused %1, B %2; they differ on %3.</numerusform>
            <numerusform>In these %n sessions, A refused %1, B %2; they differ on %3.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n kiosks: %1</source>
        <translation>
            <numerusform>%n kiosk: %1</numerusform>
            <numerusform>%n kiosks: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the broker did not take %n summaries; their states are kept for the next start</source>
        <translation>
            <numerusform>the broker did not take %n summary; its state is kept for the next start</numerusform>
            <numerusform>the broker did not take %n summaries; their states are kept for the next start</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>removed %1: %2 (%n elements)</source>
        <translation>
            <numerusform>removed %1: %2 (%n element)</numerusform>
            <numerusform>removed %1: %2 (%n elements)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sessions</source>
        <translation>
            <numerusform>%n session</numerusform>
            <numerusform>%n sessions</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lines that are in both are taken once</source>
        <translation>
            <numerusform>%n line that is in both is taken once</numerusform>
            <numerusform>%n lines that are in both are taken once</numerusform>
        </translation>
    </message>
</context>
</TS>
