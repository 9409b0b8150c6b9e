<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Diagnosis</name>
    <message numerus="yes">
        <source>%n lines were skipped in this session</source>
        <translation>
            <numerusform>%n line was skipped in this session</numerusform>
            <numerusform>%n lines were skipped in this session</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A note of %1 is refused once notes were rejected %n times, until a note is stacked or the session ends.</source>
        <translation>
            <numerusform>A note of %1 is refused once notes were rejected %n time, until a note is stacked or the session ends.</numerusform>
            <numerusform>A note of %1 is refused once notes were rejected %n times, until a note is stacked or the session ends.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A session takes at most %n notes of %1.</source>
        <translation>
            <numerusform>A session takes at most %n note of %1.</numerusform>
            <numerusform>A session takes at most %n notes of %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Notes were rejected %n times since the stacked note of line %4 (%1); %2 are allowed for %3. The next stacked note or session clears this.</source>
        <translation>
            <numerusform>Notes were rejected %n time since the stacked note of line %4 (%1); %2 are allowed for %3. The next stacked note or session clears this.</numerusform>
            <numerusform>Notes were rejected %n times since the stacked note of line %4 (%1); %2 are allowed for %3. The next stacked note or session clears this.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Notes were rejected %n times since the session began (%1); %2 are allowed for %3. The next stacked note or session clears this.</source>
        <translation>
            <numerusform>Notes were rejected %n time since the session began (%1); %2 are allowed for %3. The next stacked note or session clears this.</numerusform>
            <numerusform>Notes were rejected %n times since the session began (%1); %2 are allowed for %3. The next stacked note or session clears this.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n notes of %1 were accepted since the session began (%2); %3 are allowed. The next session clears this.</source>
        <translation>
            <numerusform>%n note of %1 was accepted since the session began (%2); %3 are allowed. The next session clears this.</numerusform>
            <numerusform>%n notes of %1 were accepted since the session began (%2); %3 are allowed. The next session clears this.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>no JSON array of whole routes; %n can be read</source>
        <translation>
            <numerusform>no JSON array of whole routes; %n can be read</numerusform>
            <numerusform>no JSON array of whole routes; %n can be read</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lines could not be read and were skipped</source>
        <translation>
            <numerusform>%n line could not be read and was skipped</numerusform>
            <numerusform>%n lines could not be read and were skipped</numerusform>
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
        <source>The broker had no room for %n messages and dropped them. With mosquitto, max_queued_messages sets the room.</source>
        <translation>
            <numerusform>The broker had no room for %n message and dropped it. With mosquitto, max_queued_messages sets the room.</numerusform>
            <numerusform>The broker had no room for %n messages and dropped them. With mosquitto, max_queued_messages sets the room.</numerusform>
        </translation>
    </message>
</context>
</TS>
