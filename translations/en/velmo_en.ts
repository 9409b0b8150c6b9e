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
    <message numerus="yes">
        <source>%1: the cassette was collected, with %n notes</source>
        <translation>
            <numerusform>%1: the cassette was collected, with %n note</numerusform>
            <numerusform>%1: the cassette was collected, with %n notes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minutes</source>
        <translation>
            <numerusform>%n minute</numerusform>
            <numerusform>%n minutes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hours</source>
        <translation>
            <numerusform>%n hour</numerusform>
            <numerusform>%n hours</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>%n day</numerusform>
            <numerusform>%n days</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more for which there is no room here</source>
        <translation>
            <numerusform>%n more for which there is no room here</numerusform>
            <numerusform>%n more for which there is no room here</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %n times this month</source>
        <translation>
            <numerusform>%1, %n time this month</numerusform>
            <numerusform>%1, %n times this month</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n kiosks selected: %1</source>
        <translation>
            <numerusform>%n kiosk selected: %1</numerusform>
            <numerusform>%n kiosks selected: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hidden by the selection</source>
        <translation>
            <numerusform>%n hidden by the selection</numerusform>
            <numerusform>%n hidden by the selection</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The summaries of %n kiosks cannot be read.</source>
        <translation>
            <numerusform>The summary of %n kiosk cannot be read.</numerusform>
            <numerusform>The summaries of %n kiosks cannot be read.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n kiosks are missing: the broker has not sent their summaries. With mosquitto, max_queued_messages sets how many it sends.</source>
        <translation>
            <numerusform>%n kiosk is missing: the broker has not sent its summary. With mosquitto, max_queued_messages sets how many it sends.</numerusform>
            <numerusform>%n kiosks are missing: the broker has not sent their summaries. With mosquitto, max_queued_messages sets how many it sends.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source> (and %n more since the last such line)</source>
        <translation>
            <numerusform> (and %n more since the last such line)</numerusform>
            <numerusform> (and %n more since the last such line)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The broker does not take the summaries of %n kiosks: %1.</source>
        <translation>
            <numerusform>The broker does not take the summary of %n kiosk: %1.</numerusform>
            <numerusform>The broker does not take the summaries of %n kiosks: %1.</numerusform>
        </translation>
    </message>
</context>
</TS>
