<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Arguments:</source>
        <translation>Argumente:</translation>
    </message>
    <message>
        <source>Displays help including Qt specific options.</source>
        <translation>Diese Hilfe mit den Optionen von Qt ausgeben.</translation>
    </message>
    <message>
        <source>Displays help on commandline options.</source>
        <translation>Diese Hilfe ausgeben.</translation>
    </message>
    <message>
        <source>Displays version information.</source>
        <translation>Die Version ausgeben.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Nach &quot;%1&quot; fehlt ein Wert.</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Optionen:</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Nach &quot;%1&quot; wird kein Wert erwartet.</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Unbekannte Option &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Unbekannte Optionen: %1.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Aufruf: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[Optionen]</translation>
    </message>
</context>
<context>
    <name>Velmo</name>
    <message>
        <source>Options:</source>
        <translation>Optionen:</translation>
    </message>
    <message>
        <source>Commands (velmo help COMMAND tells more):</source>
        <translation>Befehle (mehr mit velmo help COMMAND):</translation>
    </message>
    <message>
        <source>Usage:</source>
        <translation>Aufruf:</translation>
    </message>
    <message>
        <source>Answers questions about the cash devices of a kiosk.</source>
        <translation>Beantwortet Fragen zu den Bargeldgeräten eines Kiosks.</translation>
    </message>
    <message>
        <source>no command given; velmo --help lists them</source>
        <translation>kein Befehl angegeben; velmo --help listet die Befehle auf</translation>
    </message>
    <message>
        <source>usage: velmo %1 ... (known: %2)</source>
        <translation>Aufruf: velmo %1 ... (bekannt: %2)</translation>
    </message>
    <message>
        <source>velmo %1 (library built %2)</source>
        <translation>velmo %1 (Bibliothek erstellt %2)</translation>
    </message>
    <message>
        <source>usage: %1</source>
        <translation>Aufruf: %1</translation>
    </message>
    <message>
        <source>Why notes were refused: one answer for every note of a log.</source>
        <translation>Warum Scheine abgelehnt wurden: eine Antwort zu jedem Schein eines Protokolls.</translation>
    </message>
    <message>
        <source>Tells for each note what became of it and why: every filter that objected, with the lines that counted and what clears them, or what was the matter with the device. A session log has one JSON object a line, plain or compressed by gzip: what a device reported, or a published state {&quot;device_states&quot;: [...]}, with &quot;time&quot; and &quot;session&quot;: &quot;start&quot; where known.</source>
        <translation>Sagt zu jedem Schein, was aus ihm wurde und warum: jeden Filter, der Einspruch erhob, mit den Zeilen, die zählten, und dem, was die Ablehnung aufhebt, oder was mit dem Gerät los war. Ein Sitzungsprotokoll hat in jeder Zeile ein JSON-Objekt und darf mit gzip komprimiert sein: was ein Gerät gemeldet hat, oder einen veröffentlichten Zustand {&quot;device_states&quot;: [...]}, mit &quot;time&quot; und &quot;session&quot;: &quot;start&quot;, soweit bekannt.</translation>
    </message>
    <message>
        <source>What happened in a session log, event by event.</source>
        <translation>Was in einem Sitzungsprotokoll geschah, Ereignis für Ereignis.</translation>
    </message>
    <message>
        <source>Plays what the devices reported through the worker, the note filters and the published state, and shows for every line what came of it.</source>
        <translation>Spielt die Meldungen der Geräte durch den Worker, die Scheinfilter und den veröffentlichten Zustand und zeigt zu jeder Zeile, was sich daraus ergab.</translation>
    </message>
    <message>
        <source>What a published service state means.</source>
        <translation>Was ein veröffentlichter Dienstzustand bedeutet.</translation>
    </message>
    <message>
        <source>Checks a device state and rewrites it.</source>
        <translation>Prüft einen Gerätezustand und schreibt ihn neu.</translation>
    </message>
    <message>
        <source>Checks every key and value of a device state, and writes it as the compact text that the service sends.</source>
        <translation>Prüft jeden Schlüssel und jeden Wert eines Gerätezustands und schreibt ihn als den kompakten Text, den der Dienst sendet.</translation>
    </message>
    <message>
        <source>Changes values, in the list or into another file.</source>
        <translation>Ändert Werte, in der Liste selbst oder in eine andere Datei.</translation>
    </message>
    <message>
        <source>The route map.</source>
        <translation>Die Routentabelle.</translation>
    </message>
    <message>
        <source>The catalogue of device models.</source>
        <translation>Der Katalog der Gerätemodelle.</translation>
    </message>
    <message>
        <source>The note filters and their parameters.</source>
        <translation>Die Scheinfilter und ihre Parameter.</translation>
    </message>
    <message>
        <source>What each filter does, and its parameters with the pattern of a valid value.</source>
        <translation>Was jeder Filter tut, und seine Parameter mit dem Muster eines gültigen Werts.</translation>
    </message>
    <message>
        <source>%1: expected a number</source>
        <translation>%1: Zahl erwartet</translation>
    </message>
    <message>
        <source>Sessions: %1</source>
        <translation>Sitzungen: %1</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Scheine</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Summe</translation>
    </message>
    <message>
        <source>Filters in force (%1):</source>
        <translation>Wirksame Filter (%1):</translation>
    </message>
    <message>
        <source>None: every note is accepted.</source>
        <translation>Keine: Jeder Schein wird zugelassen.</translation>
    </message>
    <message>
        <source>log and filters cannot both come from standard input</source>
        <translation>Protokoll und Filter können nicht beide von der Standardeingabe kommen</translation>
    </message>
    <message>
        <source>filters</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>%1: answers may differ from the service&apos;s</source>
        <translation>%1: Antworten können von denen des Dienstes abweichen</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>Standardeingabe</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>Diese Hilfe ausgeben.</translation>
    </message>
    <message>
        <source>Print the version of the library and the time of its build.</source>
        <translation>Die Version der Bibliothek und den Zeitpunkt ihrer Erstellung ausgeben.</translation>
    </message>
    <message>
        <source>The note filters: [{&quot;name&quot;:&quot;AttemptsFilter&quot;,&quot;params&quot;:{&quot;denom&quot;:1000,&quot;attempts&quot;:2}}, ...]</source>
        <translation>Die Scheinfilter: [{&quot;name&quot;:&quot;AttemptsFilter&quot;,&quot;params&quot;:{&quot;denom&quot;:1000,&quot;attempts&quot;:2}}, ...]</translation>
    </message>
    <message>
        <source>In place of --filters: the filters that the service&apos;s settings imply.</source>
        <translation>Statt --filters: die Filter, die aus den Einstellungen des Dienstes folgen.</translation>
    </message>
    <message>
        <source>Print JSON in place of text.</source>
        <translation>JSON statt Text ausgeben.</translation>
    </message>
    <message>
        <source>Only session N, counted from 1 in each log.</source>
        <translation>Nur Sitzung N, in jedem Protokoll ab 1 gezählt.</translation>
    </message>
    <message>
        <source>Only the device with that identifier.</source>
        <translation>Nur das Gerät mit dieser Nummer.</translation>
    </message>
    <message>
        <source>Show only what the filters refused.</source>
        <translation>Nur zeigen, was die Filter abgelehnt haben.</translation>
    </message>
    <message>
        <source>Show only the summary.</source>
        <translation>Nur die Zusammenfassung zeigen.</translation>
    </message>
    <message>
        <source>Display names by device identifier: {&quot;1&quot;: &quot;Validator&quot;}.</source>
        <translation>Anzeigenamen nach Gerätenummer: {&quot;1&quot;: &quot;Geldscheinprüfer&quot;}.</translation>
    </message>
    <message>
        <source>Write the state as an indented map.</source>
        <translation>Den Zustand als eingerückte Map schreiben.</translation>
    </message>
    <message>
        <source>Write to OUT, &quot;-&quot; for standard output.</source>
        <translation>Nach OUT schreiben, &quot;-&quot; für die Standardausgabe.</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Schein</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Entscheidung</translation>
    </message>
    <message>
        <source>What it means</source>
        <translation>Bedeutung</translation>
    </message>
    <message>
        <source>reject</source>
        <translation>ablehnen</translation>
    </message>
    <message>
        <source>accept</source>
        <translation>annehmen</translation>
    </message>
    <message>
        <source>money may be accepted</source>
        <translation>Geld darf angenommen werden</translation>
    </message>
    <message>
        <source>nothing new</source>
        <translation>nichts Neues</translation>
    </message>
    <message>
        <source>-- session %1 --</source>
        <translation>-- Sitzung %1 --</translation>
    </message>
    <message>
        <source>The settings as the service would use them.</source>
        <translation>Die Einstellungen, wie der Dienst sie verwenden würde.</translation>
    </message>
    <message>
        <source>Marks what is at its default, and what the list lacks. With --json a list of {&quot;path&quot;, &quot;value&quot;, &quot;default&quot;, &quot;source&quot;}.</source>
        <translation>Kennzeichnet, was der Vorgabe entspricht und was in der Liste fehlt. Mit --json eine Liste von {&quot;path&quot;, &quot;value&quot;, &quot;default&quot;, &quot;source&quot;}.</translation>
    </message>
    <message>
        <source>One value as the service would use it.</source>
        <translation>Ein Wert, wie der Dienst ihn verwenden würde.</translation>
    </message>
    <message>
        <source>Changes what it is told to, and what a device needs whose model or interface changes; every other byte stays. What would leave new errors is refused. A file that cannot be written whole is left as it was.</source>
        <translation>Ändert, was angegeben ist, und was ein Gerät braucht, dessen Modell oder Anschluss sich ändert; jedes andere Byte bleibt. Was neue Fehler hinterließe, wird nicht geschrieben. Eine Datei, die nicht vollständig geschrieben werden kann, bleibt, wie sie war.</translation>
    </message>
    <message>
        <source>Removes settings, so that their defaults apply.</source>
        <translation>Entfernt Einstellungen, sodass ihre Vorgaben gelten.</translation>
    </message>
    <message>
        <source>Adds a device with the defaults of its model.</source>
        <translation>Fügt ein Gerät mit den Vorgaben seines Modells hinzu.</translation>
    </message>
    <message>
        <source>MODEL is the number or name of velmo devices. The device gets the first free index, and the device count is raised to have it in.</source>
        <translation>MODEL ist die Nummer oder der Name aus velmo devices. Das Gerät erhält den ersten freien Index, und die Geräteanzahl wird so erhöht, dass sie es einschließt.</translation>
    </message>
    <message>
        <source>Removes a device and moves up those behind it.</source>
        <translation>Entfernt ein Gerät und lässt die nachfolgenden aufrücken.</translation>
    </message>
    <message>
        <source>What the service would ignore, miss or read differently.</source>
        <translation>Was der Dienst ignorieren, nicht finden oder anders lesen würde.</translation>
    </message>
    <message>
        <source>An error is where the service would do something else than the list says, or a device would not work; a warning is odd, but harmless. The exit code is 1 when it finds something.</source>
        <translation>Ein Fehler liegt vor, wo der Dienst etwas anderes täte, als in der Liste steht, oder ein Gerät nicht arbeiten würde; eine Warnung gilt Ungewöhnlichem, das harmlos ist. Der Rückgabewert ist 1, wenn etwas gefunden wird.</translation>
    </message>
    <message>
        <source>What the service would do differently with another list.</source>
        <translation>Was der Dienst mit einer anderen Liste anders machen würde.</translation>
    </message>
    <message>
        <source>The exit code is 1 when the lists differ.</source>
        <translation>Der Rückgabewert ist 1, wenn die Listen sich unterscheiden.</translation>
    </message>
    <message>
        <source>The note filters that the settings imply.</source>
        <translation>Die Scheinfilter, die aus den Einstellungen folgen.</translation>
    </message>
    <message>
        <source>With --json a filters file.</source>
        <translation>Mit --json eine Filterdatei.</translation>
    </message>
    <message>
        <source>The language of the texts, as &quot;ru&quot;, in place of the system&apos;s.</source>
        <translation>Sprache der Texte, etwa &quot;ru&quot;, statt der des Systems.</translation>
    </message>
    <message>
        <source>Print the formatted map.</source>
        <translation>Die formatierte Map ausgeben.</translation>
    </message>
    <message>
        <source>Say whether the value is from the list or a default.</source>
        <translation>Angeben, ob der Wert aus der Liste stammt oder Vorgabe ist.</translation>
    </message>
    <message>
        <source>Write nothing; print what would change.</source>
        <translation>Nichts schreiben; ausgeben, was sich ändern würde.</translation>
    </message>
    <message>
        <source>Write it with the errors that it will have.</source>
        <translation>Trotz der Fehler schreiben, die dadurch entstehen.</translation>
    </message>
    <message>
        <source>Do not tell what was changed.</source>
        <translation>Nicht melden, was geändert wurde.</translation>
    </message>
    <message>
        <source>unknown model</source>
        <translation>unbekanntes Modell</translation>
    </message>
    <message>
        <source>Device %1: %2 (%3) &quot;%4&quot;, %5 %6</source>
        <translation>Gerät %1: %2 (%3) &quot;%4&quot;, %5 %6</translation>
    </message>
    <message>
        <source> - not below the device count</source>
        <translation> - nicht kleiner als die Geräteanzahl</translation>
    </message>
    <message>
        <source>coin</source>
        <translation>Münze</translation>
    </message>
    <message>
        <source>note</source>
        <translation>Schein</translation>
    </message>
    <message>
        <source>Currency</source>
        <translation>Währung</translation>
    </message>
    <message>
        <source>Face value</source>
        <translation>Nennwert</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Route</source>
        <translation>Route</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>Rejections</source>
        <translation>Abweisungen</translation>
    </message>
    <message>
        <source>in the table below</source>
        <translation>in der Tabelle unten</translation>
    </message>
    <message>
        <source>default</source>
        <translation>Vorgabe</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>not used</source>
        <translation>ungenutzt</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Common settings</source>
        <translation>Allgemeine Einstellungen</translation>
    </message>
    <message>
        <source>not set</source>
        <translation>nicht gesetzt</translation>
    </message>
    <message>
        <source>%1: there is no %2</source>
        <translation>%1: %2 gibt es nicht</translation>
    </message>
    <message>
        <source>%1: %2 is not set and has no default</source>
        <translation>%1: %2 ist nicht gesetzt und hat keine Vorgabe</translation>
    </message>
    <message>
        <source>%1: %2 is not set: not for a device of this model and interface</source>
        <translation>%1: %2 ist nicht gesetzt: nicht für ein Gerät mit diesem Modell und diesem Anschluss</translation>
    </message>
    <message>
        <source>%1: %2 is missing: the built-in default is &quot;%3&quot;, AcceptorSettings has &quot;%4&quot;</source>
        <translation>%1: %2 fehlt: Die eingebaute Vorgabe ist &quot;%3&quot;, AcceptorSettings hat &quot;%4&quot;</translation>
    </message>
    <message>
        <source>list (%1)</source>
        <translation>Liste (%1)</translation>
    </message>
    <message>
        <source>%1: has another owner now</source>
        <translation>%1: hat jetzt einen anderen Eigentümer</translation>
    </message>
    <message>
        <source>added %1: %2</source>
        <translation>hinzugefügt %1: %2</translation>
    </message>
    <message>
        <source>removed %1: %2</source>
        <translation>entfernt %1: %2</translation>
    </message>
    <message>
        <source>changed %1: %2 -&gt; %3</source>
        <translation>geändert %1: %2 -&gt; %3</translation>
    </message>
    <message>
        <source>nothing to change</source>
        <translation>nichts zu ändern</translation>
    </message>
    <message>
        <source>error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>%1: not written because of these errors; --force writes it all the same</source>
        <translation>%1: wegen dieser Fehler nicht geschrieben; mit --force wird trotzdem geschrieben</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: expected the index of a device</source>
        <translation>&quot;%1&quot;: Index eines Geräts erwartet</translation>
    </message>
    <message>
        <source>What the customer is told, whether money may be accepted and why not, and the service report, for a published service state {&quot;device_states&quot;: [...]}, with &quot;time&quot; where known, or for many, one a line.</source>
        <translation>Was dem Kunden angezeigt wird, ob Geld angenommen werden darf und warum nicht, und der Servicebericht, zu einem veröffentlichten Dienstzustand {&quot;device_states&quot;: [...]}, mit &quot;time&quot;, soweit bekannt, oder zu vielen, einer je Zeile.</translation>
    </message>
    <message>
        <source>Accepting money: allowed</source>
        <translation>Geldannahme: erlaubt</translation>
    </message>
    <message>
        <source>Accepting money: not allowed</source>
        <translation>Geldannahme: nicht erlaubt</translation>
    </message>
    <message>
        <source>Device faults:</source>
        <translation>Gerätestörungen:</translation>
    </message>
    <message>
        <source>-- line %1 --</source>
        <translation>-- Zeile %1 --</translation>
    </message>
    <message>
        <source>What other filters would have decided.</source>
        <translation>Was andere Filter entschieden hätten.</translation>
    </message>
    <message>
        <source>Tells every note of the logs that A accepts and B refuses, or the reverse, why, and what each refused in all. A and B are filters or settings, told apart by what they hold. Both judge what happened: what would have followed another verdict, a log does not say. The exit code is 1 when they differ.</source>
        <translation>Nennt jeden Schein der Protokolle, den A zulässt und B ablehnt oder umgekehrt, dazu den Grund und was A und B insgesamt abgelehnt haben. A und B sind Filter oder Einstellungen, unterschieden nach ihrem Inhalt. Beide urteilen über das, was geschehen ist: Was auf eine andere Entscheidung gefolgt wäre, sagt ein Protokoll nicht. Der Rückgabewert ist 1, wenn sie sich unterscheiden.</translation>
    </message>
    <message numerus="yes">
        <source>%n notes (%1)</source>
        <translation>
            <numerusform>%n Schein (%1)</numerusform>
            <numerusform>%n Scheine (%1)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>In these %n sessions, A refused %1, B %2; they differ on %3.</source>
        <translation>
            <numerusform>In %n Sitzung hat A %1 abgelehnt, B %2; verschieden entschieden: %3.</numerusform>
            <numerusform>In diesen %n Sitzungen hat A %1 abgelehnt, B %2; verschieden entschieden: %3.</numerusform>
        </translation>
    </message>
    <message>
        <source>standard input can be read only once</source>
        <translation>die Standardeingabe kann nur einmal gelesen werden</translation>
    </message>
    <message>
        <source>bad lines skipped: %1</source>
        <translation>fehlerhafte Zeilen übersprungen: %1</translation>
    </message>
    <message>
        <source>settings or filters</source>
        <translation>Einstellungen oder Filter</translation>
    </message>
    <message>
        <source>--json and --html do not go together</source>
        <translation>--json und --html schließen einander aus</translation>
    </message>
    <message>
        <source>Write a page with pictures to PAGE.html in place of text.</source>
        <translation>Statt Text eine Seite mit Bildern in PAGE.html schreiben.</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Muster</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>Bedeutung</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Pays out</source>
        <translation>Zahlt aus</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Klasse</translation>
    </message>
    <message>
        <source>unknown filter &quot;%1&quot; (known: %2)</source>
        <translation>unbekannter Filter &quot;%1&quot; (bekannt: %2)</translation>
    </message>
    <message>
        <source>standard output: %1</source>
        <translation>Standardausgabe: %1</translation>
    </message>
    <message>
        <source>expected a JSON object</source>
        <translation>JSON-Objekt erwartet</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot;: expected a device number and a name</source>
        <translation>%1: &quot;%2&quot;: Gerätenummer und Name erwartet</translation>
    </message>
    <message>
        <source>key &quot;%1&quot; is missing</source>
        <translation>Schlüssel &quot;%1&quot; fehlt</translation>
    </message>
    <message>
        <source>unknown key &quot;%1&quot;</source>
        <translation>unbekannter Schlüssel &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the logs have nothing of the session or device that is asked for</source>
        <translation>die Protokolle enthalten nichts zur angefragten Sitzung oder zum angefragten Gerät</translation>
    </message>
    <message>
        <source>The kiosks that need somebody, and why.</source>
        <translation>Die Kioske, die jemanden vor Ort brauchen, und warum.</translation>
    </message>
    <message>
        <source>silent</source>
        <translation>stumm</translation>
    </message>
    <message>
        <source>out of order</source>
        <translation>außer Betrieb</translation>
    </message>
    <message>
        <source>faulty</source>
        <translation>gestört</translation>
    </message>
    <message>
        <source>fine</source>
        <translation>in Ordnung</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message numerus="yes">
        <source>%n kiosks: %1</source>
        <translation>
            <numerusform>%n Kiosk: %1</numerusform>
            <numerusform>%n Kioske: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Kiosk</source>
        <translation>Kiosk</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Last state</source>
        <translation>Letzter Stand</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>Störung</translation>
    </message>
    <message>
        <source>The table is from before.</source>
        <translation>Die Tabelle zeigt einen früheren Stand.</translation>
    </message>
    <message>
        <source>the broker does not answer</source>
        <translation>der Broker antwortet nicht</translation>
    </message>
    <message>
        <source>no kiosk has a summary at &quot;%1&quot;</source>
        <translation>kein Kiosk hat eine Zusammenfassung unter &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Show what is new as it comes, on a cleared terminal.</source>
        <translation>Neues zeigen, sobald es eintrifft, auf geleertem Bildschirm.</translation>
    </message>
    <message>
        <source>The broker; localhost:1883 without it.</source>
        <translation>Der Broker; ohne Angabe localhost:1883.</translation>
    </message>
    <message>
        <source>Where the summaries are; kiosks/+/summary without it.</source>
        <translation>Wo die Zusammenfassungen liegen; ohne Angabe kiosks/+/summary.</translation>
    </message>
    <message>
        <source>A file with USER:PASSWORD.</source>
        <translation>Eine Datei mit BENUTZER:PASSWORT.</translation>
    </message>
    <message>
        <source>Connect by TLS and trust these certificates.</source>
        <translation>Über TLS verbinden und diesen Zertifikaten vertrauen.</translation>
    </message>
    <message>
        <source>The client&apos;s own certificate.</source>
        <translation>Das eigene Zertifikat des Clients.</translation>
    </message>
    <message>
        <source>Its key.</source>
        <translation>Dessen Schlüssel.</translation>
    </message>
    <message>
        <source>%1: expected a value</source>
        <translation>%1: Wert erwartet</translation>
    </message>
    <message>
        <source>the file ends in the middle of a line</source>
        <translation>die Datei endet mitten in einer Zeile</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;</source>
        <translation>unbekannter Befehl &quot;%1&quot;</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>unbekannte Option %1</translation>
    </message>
    <message>
        <source>argument %1, &quot;%2&quot;: wrong UTF-8</source>
        <translation>Argument %1, &quot;%2&quot;: ungültiges UTF-8</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>Standardausgabe</translation>
    </message>
    <message>
        <source>%1: is an input too; not overwritten</source>
        <translation>%1: ist auch Eingabe; nicht überschrieben</translation>
    </message>
    <message>
        <source>%1: has further names (hard links), which would keep the old content; not written</source>
        <translation>%1: hat weitere Namen (harte Links), unter denen der alte Inhalt bliebe; nicht geschrieben</translation>
    </message>
    <message>
        <source>%1: is no regular file to change; --output says where the changed list goes</source>
        <translation>%1: ist keine gewöhnliche Datei, die sich ändern lässt; wohin die geänderte Liste kommt, sagt --output</translation>
    </message>
    <message>
        <source>%1: another program is changing it</source>
        <translation>%1: wird gerade von einem anderen Programm geändert</translation>
    </message>
    <message>
        <source>carried over %1: %2 (from %3)</source>
        <translation>übernommen %1: %2 (aus %3)</translation>
    </message>
    <message>
        <source>%1: was changed meanwhile; not written</source>
        <translation>%1: wurde inzwischen geändert; nicht geschrieben</translation>
    </message>
    <message>
        <source>Skip bad lines and what cannot be read of a log; the exit code is still 2.</source>
        <translation>Fehlerhafte Zeilen und alles Unlesbare eines Protokolls überspringen; der Rückgabewert ist dennoch 2.</translation>
    </message>
    <message>
        <source>%1: expected a number from %2 to %3</source>
        <translation>%1: Zahl von %2 bis %3 erwartet</translation>
    </message>
    <message>
        <source>Where kiosks publish their states.</source>
        <translation>Wo die Kioske ihre Zustände veröffentlichen.</translation>
    </message>
    <message>
        <source>Where their summaries are published.</source>
        <translation>Wo ihre Zusammenfassungen veröffentlicht werden.</translation>
    </message>
    <message>
        <source>Where a message, its will, says that a kiosk is gone.</source>
        <translation>Wo eine Nachricht, ihr Last Will, meldet, dass ein Kiosk nicht mehr erreichbar ist.</translation>
    </message>
    <message>
        <source>After how long a kiosk is told of as silent; 0 for never.</source>
        <translation>Nach welcher Zeit ein Kiosk als stumm gemeldet wird; 0 für nie.</translation>
    </message>
    <message>
        <source>The language of the summaries, as &quot;ru&quot;, in place of the system&apos;s.</source>
        <translation>Sprache der Zusammenfassungen, etwa &quot;ru&quot;, statt der des Systems.</translation>
    </message>
    <message>
        <source>Makes summaries of what kiosks publish at an MQTT broker.</source>
        <translation>Fasst zusammen, was Kioske bei einem MQTT-Broker veröffentlichen.</translation>
    </message>
    <message>
        <source>unknown argument &quot;%1&quot;</source>
        <translation>unbekanntes Argument &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The kiosk has been silent for more than %1 s.</source>
        <translation>Der Kiosk ist seit mehr als %1 s stumm.</translation>
    </message>
    <message>
        <source>The kiosk is offline.</source>
        <translation>Der Kiosk ist offline.</translation>
    </message>
    <message>
        <source>the topic is of no kiosk</source>
        <translation>das Topic gehört zu keinem Kiosk</translation>
    </message>
    <message numerus="yes">
        <source>removed %1: %2 (%n elements)</source>
        <translation>
            <numerusform>entfernt %1: %2 (%n Element)</numerusform>
            <numerusform>entfernt %1: %2 (%n Elemente)</numerusform>
        </translation>
    </message>
    <message>
        <source>changed %1: %2 in each &quot;value&quot;</source>
        <translation>geändert %1: %2 in jedem &quot;value&quot;</translation>
    </message>
    <message>
        <source>no line has a time: nothing can be selected by it</source>
        <translation>keine Zeile hat eine Zeitangabe: nach der Zeit lässt sich nichts auswählen</translation>
    </message>
    <message>
        <source>the logs have nothing of the device that is asked for</source>
        <translation>die Protokolle enthalten nichts zum angefragten Gerät</translation>
    </message>
    <message>
        <source>the logs have no such kiosk</source>
        <translation>die Protokolle enthalten keinen solchen Kiosk</translation>
    </message>
    <message>
        <source>--json, --csv and --html exclude each other</source>
        <translation>--json, --csv und --html schließen einander aus</translation>
    </message>
    <message>
        <source>log and counts cannot both come from standard input</source>
        <translation>Protokoll und Zählergebnisse können nicht beide von der Standardeingabe kommen</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>%1 line %2</source>
        <translation>%1 Zeile %2</translation>
    </message>
    <message>
        <source>Period %1: from %2 to the end, %3</source>
        <translation>Zeitraum %1: von %2 bis zum Ende, %3</translation>
    </message>
    <message>
        <source>Period %1: from %2 to its collection, %3</source>
        <translation>Zeitraum %1: von %2 bis zur Leerung, %3</translation>
    </message>
    <message numerus="yes">
        <source>%n sessions</source>
        <translation>
            <numerusform>%n Sitzung</numerusform>
            <numerusform>%n Sitzungen</numerusform>
        </translation>
    </message>
    <message>
        <source>Pieces of unknown value that may lie in the cassette: %1</source>
        <translation>Stücke unbekannten Nennwerts, die in der Kassette liegen können: %1</translation>
    </message>
    <message>
        <source>Of money the log tells nothing.</source>
        <translation>Über Geld sagt das Protokoll nichts.</translation>
    </message>
    <message>
        <source>Everything adds up.</source>
        <translation>Alles stimmt.</translation>
    </message>
    <message>
        <source>What does not add up:</source>
        <translation>Was nicht stimmt:</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Zeitraum</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Expected</source>
        <translation>Soll</translation>
    </message>
    <message>
        <source>Counted</source>
        <translation>Gezählt</translation>
    </message>
    <message>
        <source>%1, %2 of %3: %4. What can explain it:</source>
        <translation>%1, %2 zu %3: %4. Mögliche Erklärungen:</translation>
    </message>
    <message>
        <source>pieces</source>
        <translation>Stück</translation>
    </message>
    <message>
        <source>nothing in the logs</source>
        <translation>nichts in den Protokollen</translation>
    </message>
    <message>
        <source>Kiosk %1</source>
        <translation>Kiosk %1</translation>
    </message>
    <message>
        <source>The device says of its cash: %1</source>
        <translation>Das Gerät meldet zu seinem Geld: %1</translation>
    </message>
    <message>
        <source>Where the money is: what lies in each cassette and channel.</source>
        <translation>Wo das Geld ist: was in jeder Kassette und jedem Kanal liegt.</translation>
    </message>
    <message>
        <source>Tells for each device, from one collection of its cassette to the next, what came, went and moved, what must lie there now, within which range that is known and why, and what in the logs does not add up. Several logs are of one kiosk, and are put in the order of their times.</source>
        <translation>Sagt zu jedem Gerät, von einer Leerung seiner Kassette bis zur nächsten, was kam, ging und verlagert wurde, was jetzt dort liegen muss, in welchen Grenzen das bekannt ist und warum, und was in den Protokollen nicht stimmt. Mehrere Protokolle gehören zu einem Kiosk und werden nach ihren Zeiten geordnet.</translation>
    </message>
    <message>
        <source>Incomplete: the logs were not read to the end.</source>
        <translation>Unvollständig: Die Protokolle wurden nicht bis zum Ende gelesen.</translation>
    </message>
    <message>
        <source>%1: notes before the first time, left out: %2</source>
        <translation>%1: Scheine vor der ersten Zeitangabe, ausgelassen: %2</translation>
    </message>
    <message>
        <source>%1: no line has a time: nothing can be selected by it</source>
        <translation>%1: keine Zeile hat eine Zeitangabe: nach der Zeit lässt sich nichts auswählen</translation>
    </message>
    <message>
        <source>%1 and %2 overlap from %3 to %4: %5</source>
        <translation>%1 und %2 überschneiden sich von %3 bis %4: %5</translation>
    </message>
    <message>
        <source>taken together by their times</source>
        <translation>nach den Zeiten zusammengeführt</translation>
    </message>
    <message numerus="yes">
        <source>%n lines that are in both are taken once</source>
        <translation>
            <numerusform>%n Zeile, die in beiden steht, zählt einmal</numerusform>
            <numerusform>%n Zeilen, die in beiden stehen, zählen einmal</numerusform>
        </translation>
    </message>
    <message>
        <source>the clock goes back from %1 to %2; the lines stay in their order</source>
        <translation>die Uhr springt von %1 auf %2 zurück; die Zeilen bleiben in ihrer Reihenfolge</translation>
    </message>
    <message>
        <source>a line of kiosk &quot;%1&quot; in the log of &quot;%2&quot;</source>
        <translation>eine Zeile des Kiosks &quot;%1&quot; im Protokoll von &quot;%2&quot;</translation>
    </message>
    <message>
        <source>the line does not say which kiosk it is of</source>
        <translation>die Zeile sagt nicht, zu welchem Kiosk sie gehört</translation>
    </message>
    <message>
        <source>%1: no line has a time; the logs are taken in the order in which they are given</source>
        <translation>%1: keine Zeile hat eine Zeitangabe; die Protokolle werden in der angegebenen Reihenfolge gelesen</translation>
    </message>
    <message>
        <source>standard input can be given only once</source>
        <translation>die Standardeingabe kann nur einmal angegeben werden</translation>
    </message>
    <message>
        <source>%1: given more than once, taken once</source>
        <translation>%1: mehrfach angegeben, einmal verwendet</translation>
    </message>
    <message>
        <source>Only from that time on, as 2026-11-16T10:05:12 of the local zone, with Z or an offset, or from the beginning of a date.</source>
        <translation>Nur ab dieser Zeit, etwa 2026-11-16T10:05:12 in der Ortszeit, mit Z oder Zeitversatz, oder ab dem Beginn eines Datums.</translation>
    </message>
    <message>
        <source>Only up to that time, or to the end of a date.</source>
        <translation>Nur bis zu dieser Zeit oder bis zum Ende eines Datums.</translation>
    </message>
    <message>
        <source>Only notes of that face value.</source>
        <translation>Nur Scheine dieses Nennwerts.</translation>
    </message>
    <message>
        <source>Only notes of which that became: refused, taken, stuck, rejected, returned or unknown.</source>
        <translation>Nur Scheine mit diesem Ausgang: refused, taken, stuck, rejected, returned oder unknown.</translation>
    </message>
    <message>
        <source>Show times in UTC.</source>
        <translation>Zeiten in UTC zeigen.</translation>
    </message>
    <message>
        <source>Show only what does not add up.</source>
        <translation>Nur zeigen, was nicht stimmt.</translation>
    </message>
    <message>
        <source>What was counted, to be held against the ledger: a table with the columns device, place, denomination, count, or such a JSON list.</source>
        <translation>Was gezählt wurde, zum Abgleich mit dem Soll: eine Tabelle mit den Spalten device, place, denomination, count oder eine solche JSON-Liste.</translation>
    </message>
    <message>
        <source>Only the newest period of each device.</source>
        <translation>Nur der neueste Zeitraum jedes Geräts.</translation>
    </message>
    <message>
        <source>Each log is of a kiosk of its own.</source>
        <translation>Jedes Protokoll gehört zu einem eigenen Kiosk.</translation>
    </message>
    <message>
        <source>all devices</source>
        <translation>alle Geräte</translation>
    </message>
    <message>
        <source>%1: earlier ones, not shown: %2</source>
        <translation>%1: frühere, nicht gezeigt: %2</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Offered</source>
        <translation>Eingegeben</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Angenommen</translation>
    </message>
    <message>
        <source>Rejected</source>
        <translation>Abgewiesen</translation>
    </message>
    <message>
        <source>Rejected %</source>
        <translation>Abgewiesen %</translation>
    </message>
    <message>
        <source>Refused %</source>
        <translation>Abgelehnt %</translation>
    </message>
    <message>
        <source>Stuck</source>
        <translation>Stecken geblieben</translation>
    </message>
    <message>
        <source>What was the matter:</source>
        <translation>Auffälligkeiten der Geräte:</translation>
    </message>
    <message>
        <source>%1: expected an ISO 8601 time or date, as 2026-11-16T10:05:12Z</source>
        <translation>%1: ISO-8601-Zeit oder -Datum erwartet, etwa 2026-11-16T10:05:12Z</translation>
    </message>
    <message>
        <source>--from is after --to</source>
        <translation>--from liegt nach --to</translation>
    </message>
    <message>
        <source>%1: unknown outcome &quot;%2&quot; (known: %3)</source>
        <translation>%1: unbekannter Ausgang &quot;%2&quot; (bekannt: %3)</translation>
    </message>
    <message>
        <source>--refusals and --contradictions do not go together</source>
        <translation>--refusals und --contradictions schließen einander aus</translation>
    </message>
    <message>
        <source>the same is counted at %1</source>
        <translation>dasselbe ist schon bei %1 gezählt</translation>
    </message>
    <message>
        <source>Period %1: from %2 to the time that is asked for, %3</source>
        <translation>Zeitraum %1: von %2 bis zur angefragten Zeit, %3</translation>
    </message>
    <message>
        <source>In the logs themselves everything adds up.</source>
        <translation>In den Protokollen selbst stimmt alles.</translation>
    </message>
    <message>
        <source>Not counted: device %1, period %2, %3, %4; expected: %5</source>
        <translation>Nicht gezählt: Gerät %1, Zeitraum %2, %3, %4; Soll: %5</translation>
    </message>
    <message>
        <source>The logs tell of no device.</source>
        <translation>Die Protokolle nennen kein Gerät.</translation>
    </message>
    <message>
        <source>%1 begins in the second in which %2 ends, with lines of that: taken once, though they may have happened twice</source>
        <translation>%1 beginnt in der Sekunde, in der %2 endet, mit Zeilen von dort: sie zählen einmal, könnten aber zweimal geschehen sein</translation>
    </message>
    <message>
        <source>lines before the one that names kiosk &quot;%1&quot; do not say which kiosk they are of: taken to be of &quot;%2&quot;</source>
        <translation>Zeilen vor der, die den Kiosk &quot;%1&quot; nennt, sagen nicht, zu welchem Kiosk sie gehören: sie werden &quot;%2&quot; zugerechnet</translation>
    </message>
    <message>
        <source>Print a table for spreadsheets: with --counted, of the counts.</source>
        <translation>Eine Tabelle für Tabellenprogramme ausgeben, mit --counted die der Zählung.</translation>
    </message>
    <message>
        <source>What became of a kiosk, and when.</source>
        <translation>Was aus einem Kiosk wurde, und wann.</translation>
    </message>
    <message>
        <source>Tells of the conditions that it was in, of its faults and of the collections of its cassettes, newest last, by what velmo-fleet remembers at --history.</source>
        <translation>Nennt die Zustände, in denen er war, seine Störungen und die Leerungen seiner Kassetten, das Neueste zuletzt, nach dem Verlauf, den velmo-fleet unter --history führt.</translation>
    </message>
    <message>
        <source>Takes kiosks that are no more out of the fleet.</source>
        <translation>Nimmt Kioske, die es nicht mehr gibt, aus der Flotte.</translation>
    </message>
    <message>
        <source>Ends what the broker keeps of them: state, summary and will. Where one of them is not there, nothing is done. One that still publishes comes back, and is named.</source>
        <translation>Löscht, was der Broker von ihnen aufbewahrt: Zustand, Zusammenfassung und Last Will. Fehlt dort einer von ihnen, geschieht nichts. Einer, der noch sendet, kommt wieder und wird genannt.</translation>
    </message>
    <message>
        <source>%1: unknown: &quot;%2&quot;</source>
        <translation>%1: unbekannt: &quot;%2&quot;</translation>
    </message>
    <message>
        <source> (known: %1)</source>
        <translation> (bekannt: %1)</translation>
    </message>
    <message>
        <source>The summaries are still coming.</source>
        <translation>Die Zusammenfassungen treffen noch ein.</translation>
    </message>
    <message>
        <source>%1: expected %2</source>
        <translation>%1: %2 erwartet</translation>
    </message>
    <message>
        <source> or </source>
        <translation> oder </translation>
    </message>
    <message>
        <source>the broker keeps nothing of %1; nothing was forgotten</source>
        <translation>der Broker bewahrt nichts von %1 auf; nichts wurde entfernt</translation>
    </message>
    <message>
        <source>%1: forgotten (%2)</source>
        <translation>%1: entfernt (%2)</translation>
    </message>
    <message>
        <source>; not known to have ended: %1</source>
        <translation>; Entfernung nicht bestätigt: %1</translation>
    </message>
    <message>
        <source>%1 needs %2</source>
        <translation>%1 braucht %2</translation>
    </message>
    <message numerus="yes">
        <source>%1: the cassette was collected, with %n notes</source>
        <translation>
            <numerusform>%1: Kassette geleert, mit %n Schein</numerusform>
            <numerusform>%1: Kassette geleert, mit %n Scheinen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: the cassette was collected</source>
        <translation>%1: Kassette geleert</translation>
    </message>
    <message>
        <source>still</source>
        <translation>dauert an</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>For</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Was</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: expected a month, as 2026-11, that has begun</source>
        <translation>&quot;%1&quot;: ein bereits begonnener Monat erwartet, etwa 2026-11</translation>
    </message>
    <message>
        <source>%1: expected a time, as 90m, 48h, 3d or 2w</source>
        <translation>%1: Zeitspanne erwartet, etwa 90m, 48h, 3d oder 2w</translation>
    </message>
    <message>
        <source>%1, cassette</source>
        <translation>%1, Kassette</translation>
    </message>
    <message>
        <source>%1, channel %2</source>
        <translation>%1, Kanal %2</translation>
    </message>
    <message>
        <source>%1, channel %2 of %3</source>
        <translation>%1, Kanal %2 zu %3</translation>
    </message>
    <message>
        <source>%1: empty (holds %2, %3 a day)</source>
        <translation>%1: leer (Bestand %2, %3 pro Tag)</translation>
    </message>
    <message>
        <source>%1: full (holds %2, %3 a day)</source>
        <translation>%1: voll (Bestand %2, %3 pro Tag)</translation>
    </message>
    <message>
        <source>now</source>
        <translation>jetzt</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: the history knows no such kiosk</source>
        <translation>&quot;%1&quot;: der Verlauf kennt keinen solchen Kiosk</translation>
    </message>
    <message>
        <source>The history tells of nothing in that time.</source>
        <translation>Der Verlauf enthält nichts aus dieser Zeit.</translation>
    </message>
    <message>
        <source>The history knows nothing of %1.</source>
        <translation>Der Verlauf enthält nichts zu %1.</translation>
    </message>
    <message>
        <source>all together</source>
        <translation>alle zusammen</translation>
    </message>
    <message>
        <source>In service, %</source>
        <translation>In Betrieb, %</translation>
    </message>
    <message>
        <source>Silent, %</source>
        <translation>Stumm, %</translation>
    </message>
    <message>
        <source>Not known, %</source>
        <translation>Unbekannt, %</translation>
    </message>
    <message>
        <source>Not before</source>
        <translation>Frühestens</translation>
    </message>
    <message>
        <source>By</source>
        <translation>Spätestens</translation>
    </message>
    <message>
        <source>What cannot be said, and why</source>
        <translation>Was sich nicht sagen lässt, und warum</translation>
    </message>
    <message>
        <source>due: %1, later: %2, cannot say: %3</source>
        <translation>fällig: %1, später: %2, nicht zu sagen: %3</translation>
    </message>
    <message>
        <source>less than a minute</source>
        <translation>unter einer Minute</translation>
    </message>
    <message numerus="yes">
        <source>%n minutes</source>
        <translation>
            <numerusform>%n Minute</numerusform>
            <numerusform>%n Minuten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hours</source>
        <translation>
            <numerusform>%n Stunde</numerusform>
            <numerusform>%n Stunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>%n Tag</numerusform>
            <numerusform>%n Tage</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more for which there is no room here</source>
        <translation>
            <numerusform>%n weiterer Eintrag, für den hier kein Platz ist</numerusform>
            <numerusform>%n weitere Einträge, für die hier kein Platz ist</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %n times this month</source>
        <translation>
            <numerusform>%1, %n-mal diesen Monat</numerusform>
            <numerusform>%1, %n-mal diesen Monat</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n kiosks selected: %1</source>
        <translation>
            <numerusform>%n Kiosk ausgewählt: %1</numerusform>
            <numerusform>%n Kioske ausgewählt: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hidden by the selection</source>
        <translation>
            <numerusform>%n durch die Auswahl verborgen</numerusform>
            <numerusform>%n durch die Auswahl verborgen</numerusform>
        </translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Region</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Grund</translation>
    </message>
    <message>
        <source>Kiosks</source>
        <translation>Kioske</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ohne</translation>
    </message>
    <message numerus="yes">
        <source>The summaries of %n kiosks cannot be read.</source>
        <translation>
            <numerusform>Die Zusammenfassung von %n Kiosk ist nicht lesbar.</numerusform>
            <numerusform>Die Zusammenfassungen von %n Kiosken sind nicht lesbar.</numerusform>
        </translation>
    </message>
    <message>
        <source>No worker tells of itself at &quot;%1&quot;: whether these are all kiosks, and what became of them since, is not known.</source>
        <translation>Kein Worker meldet sich unter &quot;%1&quot;: Ob dies alle Kioske sind und was seither aus ihnen wurde, ist nicht bekannt.</translation>
    </message>
    <message>
        <source>No worker has part %1: what is shown of its kiosks may be from before.</source>
        <translation>Teil %1 hat keinen Worker: Was von seinen Kiosken gezeigt wird, kann veraltet sein.</translation>
    </message>
    <message>
        <source>The worker of part %1 is not ready: it still reads what the kiosks told last.</source>
        <translation>Der Worker von Teil %1 ist nicht bereit: Er liest noch, was die Kioske zuletzt gemeldet haben.</translation>
    </message>
    <message numerus="yes">
        <source>%n kiosks are missing: the broker has not sent their summaries. With mosquitto, max_queued_messages sets how many it sends.</source>
        <translation>
            <numerusform>%n Kiosk fehlt: Der Broker hat seine Zusammenfassung nicht gesendet. Bei mosquitto bestimmt max_queued_messages, wie viele er sendet.</numerusform>
            <numerusform>%n Kioske fehlen: Der Broker hat ihre Zusammenfassungen nicht gesendet. Bei mosquitto bestimmt max_queued_messages, wie viele er sendet.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: what the worker tells of itself cannot be read.</source>
        <translation>%1: die Statusmeldung des Workers ist nicht lesbar.</translation>
    </message>
    <message>
        <source>Worker %1: %2</source>
        <translation>Worker %1: %2</translation>
    </message>
    <message>
        <source>Make the exit code 1 when the filters refused something, something does not add up, or a kiosk that is selected needs somebody.</source>
        <translation>Mit Rückgabewert 1 enden, wenn die Filter etwas abgelehnt haben, etwas nicht stimmt oder ein ausgewählter Kiosk jemanden vor Ort braucht.</translation>
    </message>
    <message>
        <source>Where the workers tell of themselves; velmo-fleet/+/status without it.</source>
        <translation>Wo die Worker ihren Status melden; ohne Angabe velmo-fleet/+/status.</translation>
    </message>
    <message>
        <source>Where the kiosks publish; kiosks/+/state without it.</source>
        <translation>Wo die Kioske veröffentlichen; ohne Angabe kiosks/+/state.</translation>
    </message>
    <message>
        <source>Where their wills are; kiosks/+/will without it.</source>
        <translation>Wo ihre Last-Will-Nachrichten liegen; ohne Angabe kiosks/+/will.</translation>
    </message>
    <message>
        <source>What velmo-fleet remembers: a file of SQLite, or postgresql://user@host:port/db?host=/socket/dir.</source>
        <translation>Der Verlauf, den velmo-fleet führt: eine SQLite-Datei oder postgresql://user@host:port/db?host=/socket/dir.</translation>
    </message>
    <message>
        <source>Only kiosks of such names, with * for any characters and ? for one; may be given several times.</source>
        <translation>Nur Kioske mit solchem Namen, * für beliebige Zeichen, ? für eines; mehrfach möglich.</translation>
    </message>
    <message>
        <source>Only kiosks that are unknown, silent, out_of_order, faulty or fine; may be given several times.</source>
        <translation>Nur Kioske in diesem Zustand: unknown, silent, out_of_order, faulty oder fine; mehrfach möglich.</translation>
    </message>
    <message>
        <source>Only kiosks with a fault of that reason, as stacker_full; may be given several times.</source>
        <translation>Nur Kioske mit einer Störung aus diesem Grund, etwa stacker_full; mehrfach möglich.</translation>
    </message>
    <message>
        <source>Only kiosks whose names begin with that, up to the first of / - _ and the point; may be given several times.</source>
        <translation>Nur Kioske, deren Name so beginnt, bis zum ersten der Zeichen / - _ und Punkt; mehrfach möglich.</translation>
    </message>
    <message>
        <source>In place of the kiosks, how many there are of each reason or region.</source>
        <translation>Statt der Kioske, wie viele es je Grund (reason) oder Region (region) sind.</translation>
    </message>
    <message>
        <source>Every fault of a kiosk, or what cannot be said, on its own line.</source>
        <translation>Jede Störung eines Kiosks, oder was sich nicht sagen lässt, in einer eigenen Zeile.</translation>
    </message>
    <message>
        <source>How much of a month, as 2026-11, kiosks were in service; this month without one.</source>
        <translation>Welchen Teil eines Monats, etwa 2026-11, die Kioske in Betrieb waren; ohne Angabe der laufende Monat.</translation>
    </message>
    <message>
        <source>What will be empty or full within that time, as 90m, 48h, 3d or 2w.</source>
        <translation>Was innerhalb dieser Zeit leer oder voll sein wird, etwa 90m, 48h, 3d oder 2w.</translation>
    </message>
    <message>
        <source>Kiosks by condition</source>
        <translation>Kioske nach Zustand</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>any</source>
        <translation>alle</translation>
    </message>
    <message>
        <source>show fine ones too</source>
        <translation>auch Kioske ohne Störung zeigen</translation>
    </message>
    <message>
        <source>For how long</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>since %1</source>
        <translation>seit %1</translation>
    </message>
    <message>
        <source>%1× this month</source>
        <translation>%1× diesen Monat</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>The first %1 are shown; %2 more are not. The filters find them.</source>
        <translation>Die ersten %1 werden gezeigt, %2 weitere nicht. Über die Filter sind sie zu finden.</translation>
    </message>
    <message>
        <source>No kiosk needs somebody.</source>
        <translation>Kein Kiosk braucht jemanden vor Ort.</translation>
    </message>
    <message>
        <source>Reading...</source>
        <translation>Wird gelesen...</translation>
    </message>
    <message>
        <source>As of %1.</source>
        <translation>Stand: %1.</translation>
    </message>
    <message>
        <source>The worker does not answer.</source>
        <translation>Der Worker antwortet nicht.</translation>
    </message>
    <message>
        <source>The worker does not answer: what is shown is from %1.</source>
        <translation>Der Worker antwortet nicht: Gezeigt wird der Stand von %1.</translation>
    </message>
    <message>
        <source>The worker has no connection to the broker: what is shown is from %1.</source>
        <translation>Der Worker hat keine Verbindung zum Broker: Gezeigt wird der Stand von %1.</translation>
    </message>
    <message>
        <source>The worker is still reading what the broker has: kiosks may be missing.</source>
        <translation>Der Worker liest noch, was der Broker hat: Es können Kioske fehlen.</translation>
    </message>
    <message>
        <source>The table needs JavaScript, which is off here.</source>
        <translation>Die Tabelle braucht JavaScript, das hier ausgeschaltet ist.</translation>
    </message>
    <message>
        <source>No history is kept.</source>
        <translation>Es wird kein Verlauf geführt.</translation>
    </message>
    <message>
        <source>The history does not answer: %1</source>
        <translation>Der Verlauf antwortet nicht: %1</translation>
    </message>
    <message>
        <source>Conditions of the last 30 days</source>
        <translation>Zustände der letzten 30 Tage</translation>
    </message>
    <message>
        <source>Faults</source>
        <translation>Störungen</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>Leerungen</translation>
    </message>
    <message>
        <source>Conditions</source>
        <translation>Zustände</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Wann</translation>
    </message>
    <message>
        <source>How long</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>still so</source>
        <translation>dauert an</translation>
    </message>
    <message>
        <source>Notes since the one before</source>
        <translation>Scheine seit der vorigen</translation>
    </message>
    <message>
        <source>None.</source>
        <translation>Keine.</translation>
    </message>
    <message>
        <source>%1 older ones are not shown.</source>
        <translation>Ältere, nicht gezeigt: %1.</translation>
    </message>
    <message>
        <source>%1 d</source>
        <translation>%1 d</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>no devices</source>
        <translation>keine Geräte</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>nicht lesbar</translation>
    </message>
    <message>
        <source>too large</source>
        <translation>zu groß</translation>
    </message>
    <message>
        <source>en</source>
        <comment>language code</comment>
        <extracomment>The language of these words, for the attribute lang of HTML.</extracomment>
        <translation>de</translation>
    </message>
    <message numerus="yes">
        <source> (and %n more since the last such line)</source>
        <translation>
            <numerusform> (und %n weitere seit der letzten solchen Zeile)</numerusform>
            <numerusform> (und %n weitere seit der letzten solchen Zeile)</numerusform>
        </translation>
    </message>
    <message>
        <source>Where workers tell of themselves.</source>
        <translation>Wo Worker ihren Status melden.</translation>
    </message>
    <message>
        <source>What the worker goes by among the others; host and process without it.</source>
        <translation>Name des Workers unter den anderen; ohne Angabe Host und Prozess.</translation>
    </message>
    <message>
        <source>Which part of the kiosks it summarises, of so many.</source>
        <translation>Welcher Teil der Kioske zusammengefasst wird, von wie vielen Teilen.</translation>
    </message>
    <message>
        <source>After how many days a kiosk that stays silent is forgotten; 0 for never.</source>
        <translation>Nach wie vielen Tagen ein stumm bleibender Kiosk aus der Flotte entfernt wird; 0 für nie.</translation>
    </message>
    <message>
        <source>--name: expected a name without /, + and #</source>
        <translation>--name: Name ohne /, + und # erwartet</translation>
    </message>
    <message>
        <source>--states, --summaries and --wills: expected as many levels of the kiosk&apos;s name in each</source>
        <translation>--states, --summaries und --wills: in jedem gleich viele Ebenen des Kiosknamens erwartet</translation>
    </message>
    <message>
        <source>--states, --summaries and --wills: expected %1 in each or in none</source>
        <translation>--states, --summaries und --wills: %1 in jedem oder in keinem erwartet</translation>
    </message>
    <message>
        <source>the broker does not take the summary of &quot;%1&quot;: %2</source>
        <translation>der Broker nimmt die Zusammenfassung von &quot;%1&quot; nicht an: %2</translation>
    </message>
    <message numerus="yes">
        <source>The broker does not take the summaries of %n kiosks: %1.</source>
        <translation>
            <numerusform>Der Broker nimmt die Zusammenfassung von %n Kiosk nicht an: %1.</numerusform>
            <numerusform>Der Broker nimmt die Zusammenfassungen von %n Kiosken nicht an: %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>--metrics: expected an address such as 127.0.0.1:9464, not &quot;%1&quot;</source>
        <translation>--metrics: Adresse wie 127.0.0.1:9464 erwartet, nicht &quot;%1&quot;</translation>
    </message>
    <message>
        <source>--metrics: libcivetweb was built without IPv6 here</source>
        <translation>--metrics: libcivetweb ist hier ohne IPv6 gebaut</translation>
    </message>
    <message>
        <source>--metrics: &quot;%1&quot; cannot be used: %2</source>
        <translation>--metrics: &quot;%1&quot; lässt sich nicht verwenden: %2</translation>
    </message>
    <message>
        <source>too many ask at once</source>
        <translation>zu viele gleichzeitige Anfragen</translation>
    </message>
    <message>
        <source>the name of the kiosk is too long, or no text</source>
        <translation>der Name des Kiosks ist zu lang oder kein Text</translation>
    </message>
    <message>
        <source>it is larger than %1 KiB</source>
        <translation>größer als %1 KiB</translation>
    </message>
    <message>
        <source>it tells of more than %1 devices</source>
        <translation>nennt mehr als %1 Geräte</translation>
    </message>
    <message>
        <source>What the kiosk published last cannot be read: %1.</source>
        <translation>Was der Kiosk zuletzt veröffentlicht hat, ist nicht lesbar: %1.</translation>
    </message>
    <message>
        <source>the clock of &quot;%1&quot; is wrong by %2 s</source>
        <translation>die Uhr von &quot;%1&quot; geht um %2 s falsch</translation>
    </message>
    <message>
        <source>the broker does not take what is published: %1</source>
        <translation>der Broker nimmt nicht an, was veröffentlicht wird: %1</translation>
    </message>
    <message>
        <source>The broker had no room for messages and dropped them.</source>
        <translation>Der Broker hatte keinen Platz für Nachrichten und hat sie verworfen.</translation>
    </message>
    <message>
        <source>Nothing is written to the history: %1</source>
        <translation>In den Verlauf wird nichts geschrieben: %1</translation>
    </message>
    <message>
        <source>Shows the kiosks of which nothing is heard, those where no device could take money, and those where some device does not work, worst first, of the summaries that velmo-fleet keeps at an MQTT broker, with the worst fault of each. Where, by what the workers tell of themselves, some may be missing or out of date, it says so, and the exit code is 2. With --history it tells for how long; --availability and --due ask the history alone.</source>
        <translation>Zeigt die Kioske, von denen nichts zu hören ist, die, bei denen kein Gerät Geld annehmen könnte, und die, bei denen irgendein Gerät nicht arbeitet; die schlimmsten zuerst, nach den Zusammenfassungen, die velmo-fleet bei einem MQTT-Broker führt, jeweils mit der schwersten Störung. Wo nach den Statusmeldungen der Worker manche fehlen oder veraltet sein können, sagt der Befehl das, und der Rückgabewert ist 2. Mit --history nennt er die Dauer; --availability und --due fragen allein den Verlauf ab.</translation>
    </message>
    <message>
        <source>kiosk %1 still publishes: it will be in the fleet again until it is switched off</source>
        <translation>Kiosk %1 sendet noch: Er erscheint wieder in der Flotte, bis er abgeschaltet wird</translation>
    </message>
    <message>
        <source>the broker does not confirm the end of %1; perhaps there is no right to write there</source>
        <translation>der Broker bestätigt das Entfernen nicht: %1; vielleicht fehlt das Recht, dort zu schreiben</translation>
    </message>
    <message>
        <source>%1: shares of the time for which the condition is known; not known: share of the month up to now.</source>
        <translation>%1: Anteile an der Zeit, für die der Zustand bekannt ist; unbekannt: Anteil am Monat bis jetzt.</translation>
    </message>
    <message>
        <source>How long to wait for what is missing while nothing comes; 1 without it.</source>
        <translation>Wie lange auf Fehlendes zu warten ist, während nichts eintrifft; ohne Angabe 1.</translation>
    </message>
    <message>
        <source>Part %1 of %2: the kiosks of the other parts are shown by their workers.</source>
        <translation>Teil %1 von %2: Die Kioske der anderen Teile zeigen deren Worker.</translation>
    </message>
    <message>
        <source>No kiosk matches the filters.</source>
        <translation>Kein Kiosk entspricht den Filtern.</translation>
    </message>
    <message>
        <source>device state</source>
        <translation>Gerätezustand</translation>
    </message>
    <message>
        <source>kiosk offline</source>
        <translation>Kiosk offline</translation>
    </message>
    <message>
        <source>Where to keep the history of the kiosks: a file of SQLite, or postgresql://USER@HOST/DATABASE.</source>
        <translation>Wo der Verlauf der Kioske geführt wird: eine SQLite-Datei oder postgresql://USER@HOST/DATABASE.</translation>
    </message>
    <message>
        <source>Where the page of the kiosks is, and where Prometheus fetches the metrics, as &quot;127.0.0.1:9464&quot;.</source>
        <translation>Wo die Seite der Kioske liegt und wo Prometheus die Metriken abholt, etwa &quot;127.0.0.1:9464&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no kiosk&apos;s name at &quot;%2&quot;</source>
        <translation>&quot;%1&quot; kann kein Kioskname unter &quot;%2&quot; sein</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>How many, and of which condition: 3 faulty.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>no kiosk has such a name and region</source>
        <translation>kein Kiosk hat einen solchen Namen und eine solche Region</translation>
    </message>
    <message>
        <source>%1; %2 without it.</source>
        <translation>%1; ohne Angabe %2.</translation>
    </message>
    <message>
        <source>Another worker has the same name.</source>
        <translation>Ein anderer Worker hat denselben Namen.</translation>
    </message>
    <message>
        <source>another worker has the same --name, &quot;%1&quot;</source>
        <translation>ein anderer Worker hat denselben --name, &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Lines that change</source>
        <translation>Zeilen, die sich ändern</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source> (no line feed at the end)</source>
        <translation> (kein Zeilenvorschub am Ende)</translation>
    </message>
    <message>
        <source>Save changes</source>
        <translation>Änderungen speichern</translation>
    </message>
    <message>
        <source>This changes in %1:</source>
        <translation>In %1 ändert sich:</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>What is found in the list</source>
        <translation>Befunde in der Liste</translation>
    </message>
    <message>
        <source>Filters that follow from the settings</source>
        <translation>Filter, die aus den Einstellungen folgen</translation>
    </message>
    <message>
        <source>Fi&amp;lters that follow</source>
        <translation>Abgeleitete Fi&amp;lter</translation>
    </message>
    <message>
        <source>Fi&amp;ndings</source>
        <translation>Be&amp;funde</translation>
    </message>
    <message>
        <source>%1 in line %2</source>
        <translation>%1 in Zeile %2</translation>
    </message>
    <message>
        <source>Nothing is wrong.</source>
        <translation>Keine Beanstandungen.</translation>
    </message>
    <message>
        <source>Fi&amp;ndings (%1)</source>
        <translation>Be&amp;funde (%1)</translation>
    </message>
    <message>
        <source>The language of the window, as &quot;ru&quot;, in place of the system&apos;s.</source>
        <translation>Sprache des Fensters, etwa &quot;ru&quot;, statt der des Systems.</translation>
    </message>
    <message>
        <source>Shows a settings list as forms, checks it and changes it.</source>
        <translation>Zeigt eine Einstellungsliste als Formulare, prüft und ändert sie.</translation>
    </message>
    <message>
        <source>The settings list.</source>
        <translation>Die Einstellungsliste.</translation>
    </message>
    <message>
        <source>Add a device</source>
        <translation>Gerät hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Model:</source>
        <translation>&amp;Modell:</translation>
    </message>
    <message>
        <source>It begins with the built-in defaults of its model.</source>
        <translation>Das Gerät beginnt mit den eingebauten Vorgaben seines Modells.</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation>Einstellungen suchen</translation>
    </message>
    <message>
        <source>Service and devices</source>
        <translation>Dienst und Geräte</translation>
    </message>
    <message>
        <source>Settings that match</source>
        <translation>Gefundene Einstellungen</translation>
    </message>
    <message>
        <source>No setting matches.</source>
        <translation>Keine Einstellung gefunden.</translation>
    </message>
    <message>
        <source>Default and removal</source>
        <translation>Vorgabe und Entfernen</translation>
    </message>
    <message>
        <source>%1 or more.</source>
        <translation>%1 oder mehr.</translation>
    </message>
    <message>
        <source>%1 to %2.</source>
        <translation>%1 bis %2.</translation>
    </message>
    <message>
        <source>not in the list: the default</source>
        <translation>nicht in der Liste: Vorgabe</translation>
    </message>
    <message>
        <source>not in the list</source>
        <translation>nicht in der Liste</translation>
    </message>
    <message>
        <source>not used by this device</source>
        <translation>von diesem Gerät nicht verwendet</translation>
    </message>
    <message>
        <source>the default</source>
        <translation>die Vorgabe</translation>
    </message>
    <message>
        <source>default: %1</source>
        <translation>Vorgabe: %1</translation>
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
        <source>default: no rows</source>
        <translation>Vorgabe: keine Zeilen</translation>
    </message>
    <message>
        <source>%1: not written because of these errors:</source>
        <translation>%1: wegen dieser Fehler nicht geschrieben:</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Dienst</translation>
    </message>
    <message>
        <source>Acceptance of money</source>
        <translation>Geldannahme</translation>
    </message>
    <message>
        <source>Dispenser</source>
        <translation>Ausgabeeinheit</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>Übertragungsprotokoll</translation>
    </message>
    <message>
        <source>Device %1: %2</source>
        <translation>Gerät %1: %2</translation>
    </message>
    <message>
        <source>Settings of cash devices</source>
        <translation>Einstellungen der Bargeldgeräte</translation>
    </message>
    <message>
        <source>No settings list is open.
Ctrl+O opens one.</source>
        <translation>Keine Einstellungsliste geöffnet.
Öffnen mit Strg+O.</translation>
    </message>
    <message>
        <source>Open a settings list</source>
        <translation>Einstellungsliste öffnen</translation>
    </message>
    <message>
        <source>Settings lists (*.json);;All files (*)</source>
        <translation>Einstellungslisten (*.json);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Nothing has changed.</source>
        <translation>Nichts hat sich geändert.</translation>
    </message>
    <message>
        <source>Save the settings list as</source>
        <translation>Einstellungsliste speichern unter</translation>
    </message>
    <message>
        <source>Saved %1.</source>
        <translation>%1 gespeichert.</translation>
    </message>
    <message>
        <source>Reloading drops the changes that were made here.</source>
        <translation>Neu laden verwirft die hier gemachten Änderungen.</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>Neu &amp;laden</translation>
    </message>
    <message>
        <source>Save &amp;as...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>%1: has changes that are not saved.</source>
        <translation>%1: hat Änderungen, die nicht gespeichert sind.</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>&amp;Speichern...</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>Add row</source>
        <translation>Zeile hinzufügen</translation>
    </message>
    <message>
        <source>Remove row</source>
        <translation>Zeile entfernen</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(leer)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>Set the &amp;default</source>
        <translation>Auf &amp;Vorgabe setzen</translation>
    </message>
    <message>
        <source>&amp;Take out of the list</source>
        <translation>Aus der &amp;Liste nehmen</translation>
    </message>
    <message>
        <source>&amp;Find a setting</source>
        <translation>Einstellung &amp;suchen</translation>
    </message>
    <message>
        <source>&amp;Next finding</source>
        <translation>&amp;Nächster Befund</translation>
    </message>
    <message>
        <source>&amp;Devices</source>
        <translation>&amp;Geräte</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>&amp;Hinzufügen...</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Move &amp;up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Move do&amp;wn</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>%1: is no regular file</source>
        <translation>%1: ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>While no worker ran or had a connection, kiosks count as in the condition before.</source>
        <translation>Solange kein Worker lief oder Verbindung hatte, zählen Kioske als in dem Zustand davor.</translation>
    </message>
</context>
</TS>
