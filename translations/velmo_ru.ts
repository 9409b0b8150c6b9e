<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en">
<context>
    <name>Velmo</name>
    <message>
        <source>Options:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Commands (velmo help COMMAND tells more):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Usage:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Answers questions about the cash devices of a kiosk.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no command given; velmo --help lists them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>usage: velmo %1 ... (known: %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot; (nearest known: %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown option %1 (nearest known: %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no translations for language &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>velmo %1 (library built %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>usage: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Why notes were refused: one answer for every note of a log.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tells for each note what became of it and why: every filter that objected, with the lines that counted and what clears them, or what was the matter with the device. A session log has one JSON object a line, plain or compressed by gzip: what a device reported, or a published state {&quot;device_states&quot;: [...]}, with &quot;time&quot; and &quot;session&quot;: &quot;start&quot; where known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What happened in a session log, event by event.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plays what the devices reported through the worker, the note filters and the published state, and shows for every line what came of it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What a published service state means.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the customer is told, whether money may be accepted, and the service report, for a published service state {&quot;device_states&quot;: [...]}. From standard input (&quot;-&quot;), one state a line.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checks a device state and rewrites it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checks every key and value of a device state, and writes it as the compact text that the service sends.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changes values, in the list or into another file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The route map.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The catalogue of device models.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The note filters and their parameters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What each filter does, and its parameters with the pattern of a valid value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: expected a number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Taken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refused by the filters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>taken although refused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rejected by the device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Returned</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sessions: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filters in force (%1):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None: every note is accepted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>log and filters cannot both come from standard input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>filters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: answers may differ from the service&apos;s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>standard input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the version of the library and the time of its build.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The note filters: [{&quot;name&quot;:&quot;AttemptsFilter&quot;,&quot;params&quot;:{&quot;denom&quot;:1000,&quot;attempts&quot;:2}}, ...]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In place of --filters: the filters that the service&apos;s settings imply.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print JSON in place of text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skip bad lines and count them; the exit code is still 2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only session N, counted from 1 in each log.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only the device with that identifier.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show only what the filters refused.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show only the summary.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make the exit code 1 when the filters refused something.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display names by device identifier: {&quot;1&quot;: &quot;Validator&quot;}.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear the terminal before every state.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the state as an indented map.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write to OUT, &quot;-&quot; for standard output.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What it means</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reject</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>accept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>money may be accepted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing new</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>-- session %1 --</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings as the service would use them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Marks what is at its default, and what the list lacks. With --json a list of {&quot;path&quot;, &quot;value&quot;, &quot;default&quot;, &quot;source&quot;}.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One value as the service would use it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changes what it is told to, and what a device needs whose model or interface changes; every other byte stays. What would leave new errors is refused. A file that cannot be written whole is left as it was.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removes settings, so that their defaults apply.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adds a device with the defaults of its model.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MODEL is the number or name of velmo devices. The device gets the first free index, and the device count is raised to have it in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removes a device and moves up those behind it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the service would ignore, miss or read differently.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An error is where the service would do something else than the list says, or a device would not work; a warning is odd, but harmless. The exit code is 1 when it finds something.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the service would do differently with another list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The exit code is 1 when the lists differ.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The note filters that the settings imply.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With --json a filters file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The language of the texts, as &quot;ru&quot;, in place of the system&apos;s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the formatted map.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Say whether the value is from the list or a default.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write nothing; print what would change.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write it with the errors that it will have.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do not tell what was changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device %1: %2 (%3) &quot;%4&quot;, %5 %6</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> - not below the device count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>coin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Currency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Face value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Route</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rejections</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in the table below</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Setting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Common settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: there is no %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 is not set and has no default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 is not set: not for a device of this model and interface</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 is missing: the built-in default is &quot;%3&quot;, AcceptorSettings has &quot;%4&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>list (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: has another owner now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>added %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>removed %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>changed %1: %2 -&gt; %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing to change</source>
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
        <source>%1: not written because of these errors; --force writes it all the same</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot;: expected the index of a device</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
