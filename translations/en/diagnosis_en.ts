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
    <message numerus="yes">
        <source>%n pieces were filled in</source>
        <translation>
            <numerusform>%n piece was filled in</numerusform>
            <numerusform>%n pieces were filled in</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n things do not add up.</source>
        <translation>
            <numerusform>%n thing does not add up.</numerusform>
            <numerusform>%n things do not add up.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pieces got stuck on their way</source>
        <translation>
            <numerusform>%n piece got stuck on its way</numerusform>
            <numerusform>%n pieces got stuck on their way</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pieces are on their way</source>
        <translation>
            <numerusform>%n piece is on its way</numerusform>
            <numerusform>%n pieces are on their way</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>of %n pieces the log does not say what became of them</source>
        <translation>
            <numerusform>of %n piece the log does not say what became of it</numerusform>
            <numerusform>of %n pieces the log does not say what became of them</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>lines were skipped while %n pieces were on their way</source>
        <translation>
            <numerusform>lines were skipped while %n piece was on its way</numerusform>
            <numerusform>lines were skipped while %n pieces were on their way</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the value of %n pieces changed while they were on their way</source>
        <translation>
            <numerusform>the value of %n piece changed while it was on its way</numerusform>
            <numerusform>the value of %n pieces changed while they were on their way</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pieces of unknown value were taken</source>
        <translation>
            <numerusform>%n piece of unknown value was taken</numerusform>
            <numerusform>%n pieces of unknown value were taken</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>of %n pieces the registry does not tell whether they are in a channel</source>
        <translation>
            <numerusform>of %n piece the registry does not tell whether it is in a channel</numerusform>
            <numerusform>of %n pieces the registry does not tell whether they are in a channel</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>by the device&apos;s counter %n pieces are missing from the log</source>
        <translation>
            <numerusform>by the device&apos;s counter %n piece is missing from the log</numerusform>
            <numerusform>by the device&apos;s counter %n pieces are missing from the log</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n credits came without a piece</source>
        <translation>
            <numerusform>%n credit came without a piece</numerusform>
            <numerusform>%n credits came without a piece</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lines were skipped</source>
        <translation>
            <numerusform>%n line was skipped</numerusform>
            <numerusform>%n lines were skipped</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>lines were skipped in which the cassette may have been emptied</source>
        <translation>
            <numerusform>lines were skipped in which the cassette may have been emptied</numerusform>
            <numerusform>lines were skipped in which the cassette may have been emptied</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the registry was told for the first time while channels were floated or emptied</source>
        <translation>
            <numerusform>the registry was told for the first time while channels were floated or emptied</numerusform>
            <numerusform>the registry was told for the first time while channels were floated or emptied</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pieces left a channel, and the log does not say why</source>
        <translation>
            <numerusform>%n piece left a channel, and the log does not say why</numerusform>
            <numerusform>%n pieces left a channel, and the log does not say why</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pieces came or went while the cassette was out, and are not counted here</source>
        <translation>
            <numerusform>%n piece came or went while the cassette was out, and is not counted here</numerusform>
            <numerusform>%n pieces came or went while the cassette was out, and are not counted here</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the log does not tell the end of a payout, a float or an emptying, %n pieces may be on their way</source>
        <translation>
            <numerusform>the log does not tell the end of a payout, a float or an emptying, %n piece may be on its way</numerusform>
            <numerusform>the log does not tell the end of a payout, a float or an emptying, %n pieces may be on their way</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The device counted %1, and the log has %2 of them: %n notes are missing from the log. Their lines would clear this.</source>
        <translation>
            <numerusform>The device counted %1, and the log has %2 of them: %n note is missing from the log. Its lines would clear this.</numerusform>
            <numerusform>The device counted %1, and the log has %2 of them: %n notes are missing from the log. Their lines would clear this.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n that do not add up</source>
        <translation>
            <numerusform>%n that does not add up</numerusform>
            <numerusform>%n that do not add up</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n refused</source>
        <translation>
            <numerusform>%n refused</numerusform>
            <numerusform>%n refused</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n taken</source>
        <translation>
            <numerusform>%n taken</numerusform>
            <numerusform>%n taken</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n stuck</source>
        <translation>
            <numerusform>%n stuck</numerusform>
            <numerusform>%n stuck</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rejected</source>
        <translation>
            <numerusform>%n rejected</numerusform>
            <numerusform>%n rejected</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n returned</source>
        <translation>
            <numerusform>%n returned</numerusform>
            <numerusform>%n returned</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n unknown</source>
        <translation>
            <numerusform>%n unknown</numerusform>
            <numerusform>%n unknown</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rows were not counted.</source>
        <translation>
            <numerusform>%n row was not counted.</numerusform>
            <numerusform>%n rows were not counted.</numerusform>
        </translation>
    </message>
</context>
</TS>
