<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en">
<context>
    <name>Diagnosis</name>
    <message>
        <source>note of %1 refused.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>coin of %1 refused.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>note of %1 taken.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>coin of %1 taken.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>note of %1 rejected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>coin of %1 rejected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>note of %1 returned.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>coin of %1 returned.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>note of %1: the log does not say what became of it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>coin of %1: the log does not say what became of it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Session %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>coin of unknown value rejected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>note of unknown value rejected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It was taken although refused (line %1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By the device itself; no filter objected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uncertain: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the log begins in the middle of this session</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n lines were skipped in this session</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>expected an object with the filter&apos;s &quot;name&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown key &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;params&quot;: expected an object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown filter &quot;%1&quot; (known: %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: unknown parameter &quot;%2&quot; (known: %3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: parameter &quot;%2&quot; cannot hold this value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: is a settings list, where a filters file is expected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: is a filters file, where a settings list is expected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every note may be taken as far as the accept filter is concerned.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every note is refused.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>A note of %1 is refused once notes were rejected %n times, until a note is stacked or the session ends.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A session takes at most %n notes of %1.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>A session takes at most %1 in all.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>at last in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All notes are switched off (acceptAll is 0).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No attempts at all are allowed for %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Notes were rejected %n times since the stacked note of line %4 (%1); %2 are allowed for %3. The next stacked note or session clears this.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Notes were rejected %n times since the session began (%1); %2 are allowed for %3. The next stacked note or session clears this.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>No notes of %1 are allowed at all.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n notes of %1 were accepted since the session began (%2); %3 are allowed. The next session clears this.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 taken + note %2 &gt; limit %3. The next session clears this.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switches the taking of all notes and coins on or off.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Guards against fishing: once the device has rejected notes a number of times, a note of one face value is refused until a note is stacked or the session ends.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Limits how many notes or coins of one face value a session takes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Limits the sum that a session takes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>lines %1 and %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the compressed file is cut off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the compressed file is damaged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device was disabled (since line %1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device was offline (since line %1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device was halted (since line %1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device had a critical error (since line %1): %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The stacker was missing (since line %1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The stacker was full (since line %1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bill validator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Coin acceptor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Card terminal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Note dispenser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Note recycler</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Coin hopper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, thread %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected an ISO 8601 time or milliseconds since 1970</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected true or false</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected a text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected a whole number from %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown state name &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>key &quot;%1&quot; is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot hold this value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected a list of registry rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>row %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected a list &quot;device_states&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected a JSON object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;device_states&quot;: element %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;session&quot;: expected &quot;start&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>fields of one device beside &quot;device_states&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>more than 256 MiB of text at once</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot;: expected GROUP/KEY</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown setting &quot;%1&quot; (nearest known: %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>out of its range %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no whole number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>neither 0 nor 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no JSON array of limits, each with &quot;denom&quot; and &quot;attempts&quot; of 1 or more</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>no JSON array of whole routes; %n can be read</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>no address: the device is not found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is skipped: no &quot;group&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is ignored (nearest known: %1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is set again by a later element, to the same</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>does not count: a later element sets it again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>has no effect: not for a device of this model and interface</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is read as %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>has no text or number: reads as &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>: reads as &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is missing: the service drives no device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is missing, but below the device count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>and more up to %1 are missing, but below the device count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is not below the device count: the service does not drive it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is where %2 is too</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>: there is no built-in default, AcceptorSettings has &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>: the built-in default is &quot;%1&quot;, AcceptorSettings has &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>differs from %1, which AcceptorSettings writes here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no model of the catalogue (nearest known: %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot;: expected SETTING=VALUE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: there is no %2; velmo settings add-device makes %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has no built-in default and gets that of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not in the list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a device of this model has no &quot;%1&quot; (nearest known: %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: there is no %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 becomes %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a service state</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a formatted settings map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a session log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a device state or a line of a session log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a filters file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what velmo settings show --json prints</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a route map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a list of anti-fishing limits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the catalogue of devices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an empty list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: not a settings list: no element is a known setting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: not a settings list: looks like %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
