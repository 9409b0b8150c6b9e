<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Diagnosis</name>
    <message>
        <source>Session %1</source>
        <translation>Sitzung %1</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>It was taken although refused (line %1).</source>
        <translation>Trotz Ablehnung angenommen (Zeile %1).</translation>
    </message>
    <message>
        <source>By the device itself; no filter objected.</source>
        <translation>Durch das Gerät selbst; kein Filter hatte Einwände.</translation>
    </message>
    <message>
        <source>Uncertain: %1.</source>
        <translation>Unsicher: %1.</translation>
    </message>
    <message>
        <source>the log begins in the middle of this session</source>
        <translation>das Protokoll beginnt mitten in dieser Sitzung</translation>
    </message>
    <message numerus="yes">
        <source>%n lines were skipped in this session</source>
        <translation>
            <numerusform>in dieser Sitzung wurde %n Zeile übersprungen</numerusform>
            <numerusform>in dieser Sitzung wurden %n Zeilen übersprungen</numerusform>
        </translation>
    </message>
    <message>
        <source>expected an object with the filter&apos;s &quot;name&quot;</source>
        <translation>Objekt mit dem &quot;name&quot; des Filters erwartet</translation>
    </message>
    <message>
        <source>unknown key &quot;%1&quot;</source>
        <translation>unbekannter Schlüssel &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;params&quot;: expected an object</source>
        <translation>&quot;params&quot;: Objekt erwartet</translation>
    </message>
    <message>
        <source>unknown filter &quot;%1&quot; (known: %2)</source>
        <translation>unbekannter Filter &quot;%1&quot; (bekannt: %2)</translation>
    </message>
    <message>
        <source>%1: unknown parameter &quot;%2&quot; (known: %3)</source>
        <translation>%1: unbekannter Parameter &quot;%2&quot; (bekannt: %3)</translation>
    </message>
    <message>
        <source>%1: parameter &quot;%2&quot; cannot hold this value</source>
        <translation>%1: Parameter &quot;%2&quot; kann diesen Wert nicht haben</translation>
    </message>
    <message>
        <source>%1: is a settings list, where a filters file is expected</source>
        <translation>%1: ist eine Einstellungsliste; erwartet wird eine Filterdatei</translation>
    </message>
    <message>
        <source>%1: is a filters file, where a settings list is expected</source>
        <translation>%1: ist eine Filterdatei; erwartet wird eine Einstellungsliste</translation>
    </message>
    <message>
        <source>Every note may be taken as far as the accept filter is concerned.</source>
        <translation>Was den Annahmefilter angeht, darf jeder Schein angenommen werden.</translation>
    </message>
    <message>
        <source>Every note is refused.</source>
        <translation>Jeder Schein wird abgelehnt.</translation>
    </message>
    <message numerus="yes">
        <source>A note of %1 is refused once notes were rejected %n times, until a note is stacked or the session ends.</source>
        <translation>
            <numerusform>Wurden %n-mal Scheine abgewiesen, wird ein Schein zu %1 abgelehnt, bis ein Schein eingestapelt wird oder die Sitzung endet.</numerusform>
            <numerusform>Wurden %n-mal Scheine abgewiesen, wird ein Schein zu %1 abgelehnt, bis ein Schein eingestapelt wird oder die Sitzung endet.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A session takes at most %n notes of %1.</source>
        <translation>
            <numerusform>Eine Sitzung nimmt höchstens %n Schein zu %1 an.</numerusform>
            <numerusform>Eine Sitzung nimmt höchstens %n Scheine zu %1 an.</numerusform>
        </translation>
    </message>
    <message>
        <source>A session takes at most %1 in all.</source>
        <translation>Eine Sitzung nimmt insgesamt höchstens %1 an.</translation>
    </message>
    <message>
        <source>at last in %1</source>
        <translation>zuletzt in %1</translation>
    </message>
    <message>
        <source>All notes are switched off (acceptAll is 0).</source>
        <translation>Die Annahme aller Scheine ist ausgeschaltet (acceptAll ist 0).</translation>
    </message>
    <message>
        <source>No attempts at all are allowed for %1.</source>
        <translation>Für %1 ist gar kein Versuch erlaubt.</translation>
    </message>
    <message numerus="yes">
        <source>Notes were rejected %n times since the stacked note of line %4 (%1); %2 are allowed for %3. The next stacked note or session clears this.</source>
        <translation>
            <numerusform>Seit dem eingestapelten Schein in Zeile %4 wurden %n-mal Scheine abgewiesen (%1); für %3 erlaubt: %2. Der nächste eingestapelte Schein oder die nächste Sitzung hebt das auf.</numerusform>
            <numerusform>Seit dem eingestapelten Schein in Zeile %4 wurden %n-mal Scheine abgewiesen (%1); für %3 erlaubt: %2. Der nächste eingestapelte Schein oder die nächste Sitzung hebt das auf.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Notes were rejected %n times since the session began (%1); %2 are allowed for %3. The next stacked note or session clears this.</source>
        <translation>
            <numerusform>Seit Beginn der Sitzung wurden %n-mal Scheine abgewiesen (%1); für %3 erlaubt: %2. Der nächste eingestapelte Schein oder die nächste Sitzung hebt das auf.</numerusform>
            <numerusform>Seit Beginn der Sitzung wurden %n-mal Scheine abgewiesen (%1); für %3 erlaubt: %2. Der nächste eingestapelte Schein oder die nächste Sitzung hebt das auf.</numerusform>
        </translation>
    </message>
    <message>
        <source>No notes of %1 are allowed at all.</source>
        <translation>Scheine zu %1 sind gar nicht erlaubt.</translation>
    </message>
    <message numerus="yes">
        <source>%n notes of %1 were accepted since the session began (%2); %3 are allowed. The next session clears this.</source>
        <translation>
            <numerusform>Seit Beginn der Sitzung wurde %n Schein zu %1 angenommen (%2); erlaubt: %3. Die nächste Sitzung hebt das auf.</numerusform>
            <numerusform>Seit Beginn der Sitzung wurden %n Scheine zu %1 angenommen (%2); erlaubt: %3. Die nächste Sitzung hebt das auf.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 taken + note %2 &gt; limit %3. The next session clears this.</source>
        <translation>Angenommen: %1 + Schein %2 &gt; Grenze %3. Die nächste Sitzung hebt das auf.</translation>
    </message>
    <message>
        <source>Switches the taking of all notes and coins on or off.</source>
        <translation>Schaltet die Annahme aller Scheine und Münzen ein oder aus.</translation>
    </message>
    <message>
        <source>Guards against fishing: once the device has rejected notes a number of times, a note of one face value is refused until a note is stacked or the session ends.</source>
        <translation>Schützt vor Fishing: Sobald das Gerät so oft wie angegeben Scheine abgewiesen hat, wird ein Schein eines bestimmten Nennwerts abgelehnt, bis ein Schein eingestapelt wird oder die Sitzung endet.</translation>
    </message>
    <message>
        <source>Limits how many notes or coins of one face value a session takes.</source>
        <translation>Begrenzt, wie viele Scheine oder Münzen eines Nennwerts eine Sitzung annimmt.</translation>
    </message>
    <message>
        <source>Limits the sum that a session takes.</source>
        <translation>Begrenzt die Summe, die eine Sitzung annimmt.</translation>
    </message>
    <message>
        <source>lines %1 and %2</source>
        <translation>Zeilen %1 und %2</translation>
    </message>
    <message>
        <source>the compressed file is cut off</source>
        <translation>die komprimierte Datei ist abgeschnitten</translation>
    </message>
    <message>
        <source>the compressed file is damaged</source>
        <translation>die komprimierte Datei ist beschädigt</translation>
    </message>
    <message>
        <source>The device was disabled (since line %1).</source>
        <translation>Das Gerät war gesperrt (seit Zeile %1).</translation>
    </message>
    <message>
        <source>The device was offline (since line %1).</source>
        <translation>Das Gerät war offline (seit Zeile %1).</translation>
    </message>
    <message>
        <source>The device was halted (since line %1).</source>
        <translation>Das Gerät war angehalten (seit Zeile %1).</translation>
    </message>
    <message>
        <source>The device had a critical error (since line %1): %2.</source>
        <translation>Das Gerät hatte einen kritischen Fehler (seit Zeile %1): %2.</translation>
    </message>
    <message>
        <source>The stacker was missing (since line %1).</source>
        <translation>Der Stapler fehlte (seit Zeile %1).</translation>
    </message>
    <message>
        <source>The stacker was full (since line %1).</source>
        <translation>Der Stapler war voll (seit Zeile %1).</translation>
    </message>
    <message>
        <source>Bill validator</source>
        <translation>Geldscheinprüfer</translation>
    </message>
    <message>
        <source>Coin acceptor</source>
        <translation>Münzprüfer</translation>
    </message>
    <message>
        <source>Card terminal</source>
        <translation>Kartenterminal</translation>
    </message>
    <message>
        <source>Note dispenser</source>
        <translation>Scheinausgabe</translation>
    </message>
    <message>
        <source>Note recycler</source>
        <translation>Scheinrecycler</translation>
    </message>
    <message>
        <source>Coin hopper</source>
        <translation>Münzhopper</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Device %1</source>
        <translation>Gerät %1</translation>
    </message>
    <message>
        <source>no description</source>
        <translation>keine Beschreibung</translation>
    </message>
    <message>
        <source>%1, thread %2</source>
        <translation>%1, Thread %2</translation>
    </message>
    <message>
        <source>expected true or false</source>
        <translation>true oder false erwartet</translation>
    </message>
    <message>
        <source>expected a text</source>
        <translation>Text erwartet</translation>
    </message>
    <message>
        <source>expected a whole number from %1 to %2</source>
        <translation>ganze Zahl von %1 bis %2 erwartet</translation>
    </message>
    <message>
        <source>unknown state name &quot;%1&quot;</source>
        <translation>unbekannter Zustandsname &quot;%1&quot;</translation>
    </message>
    <message>
        <source>key &quot;%1&quot; is missing</source>
        <translation>Schlüssel &quot;%1&quot; fehlt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot hold this value</source>
        <translation>&quot;%1&quot; kann diesen Wert nicht haben</translation>
    </message>
    <message>
        <source>expected a list of registry rows</source>
        <translation>Liste von Registerzeilen erwartet</translation>
    </message>
    <message>
        <source>row %1: %2</source>
        <translation>Registerzeile %1: %2</translation>
    </message>
    <message>
        <source>expected a list &quot;device_states&quot;</source>
        <translation>Liste &quot;device_states&quot; erwartet</translation>
    </message>
    <message>
        <source>expected a JSON object</source>
        <translation>JSON-Objekt erwartet</translation>
    </message>
    <message>
        <source>&quot;device_states&quot;: element %1: %2</source>
        <translation>&quot;device_states&quot;: Element %1: %2</translation>
    </message>
    <message>
        <source>&quot;session&quot;: expected &quot;start&quot;</source>
        <translation>&quot;session&quot;: &quot;start&quot; erwartet</translation>
    </message>
    <message>
        <source>fields of one device beside &quot;device_states&quot;</source>
        <translation>Felder eines einzelnen Geräts neben &quot;device_states&quot;</translation>
    </message>
    <message>
        <source>more than 256 MiB of text at once</source>
        <translation>mehr als 256 MiB Text auf einmal</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: expected GROUP/KEY</source>
        <translation>&quot;%1&quot;: GROUP/KEY erwartet</translation>
    </message>
    <message>
        <source>out of its range %1 to %2</source>
        <translation>außerhalb des Bereichs %1 bis %2</translation>
    </message>
    <message>
        <source>no whole number</source>
        <translation>keine ganze Zahl</translation>
    </message>
    <message>
        <source>neither 0 nor 1</source>
        <translation>weder 0 noch 1</translation>
    </message>
    <message>
        <source>none of %1</source>
        <translation>keiner der Werte %1</translation>
    </message>
    <message>
        <source>no JSON array of limits, each with &quot;denom&quot; and &quot;attempts&quot; of 1 or more</source>
        <translation>kein JSON-Array von Grenzen, jede mit &quot;denom&quot; und &quot;attempts&quot; ab 1</translation>
    </message>
    <message numerus="yes">
        <source>no JSON array of whole routes; %n can be read</source>
        <translation>
            <numerusform>kein JSON-Array vollständiger Routen; lesbar ist %n</numerusform>
            <numerusform>kein JSON-Array vollständiger Routen; lesbar sind %n</numerusform>
        </translation>
    </message>
    <message>
        <source>no address: the device is not found</source>
        <translation>keine Adresse: das Gerät wird nicht gefunden</translation>
    </message>
    <message>
        <source>is skipped: no &quot;group&quot;</source>
        <translation>wird übersprungen: &quot;group&quot; fehlt</translation>
    </message>
    <message>
        <source>is set again by a later element, to the same</source>
        <translation>wird von einem späteren Element noch einmal gesetzt, auf denselben Wert</translation>
    </message>
    <message>
        <source>does not count: a later element sets it again</source>
        <translation>gilt nicht: ein späteres Element setzt es noch einmal</translation>
    </message>
    <message>
        <source>has no effect: not for a device of this model and interface</source>
        <translation>hat keine Wirkung: nicht für ein Gerät mit diesem Modell und diesem Anschluss</translation>
    </message>
    <message>
        <source>is read as %1</source>
        <translation>wird als %1 gelesen</translation>
    </message>
    <message>
        <source>has no text or number: reads as &quot;%1&quot;</source>
        <translation>ist weder Text noch Zahl: wird als &quot;%1&quot; gelesen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2</source>
        <translation>&quot;%1&quot; ist %2</translation>
    </message>
    <message>
        <source>: reads as &quot;%1&quot;</source>
        <translation>: wird als &quot;%1&quot; gelesen</translation>
    </message>
    <message>
        <source>is missing: the service drives no device</source>
        <translation>fehlt: der Dienst steuert kein Gerät an</translation>
    </message>
    <message>
        <source>is missing, but below the device count</source>
        <translation>fehlt, liegt aber unter der Geräteanzahl</translation>
    </message>
    <message>
        <source>and more up to %1 are missing, but below the device count</source>
        <translation>und weitere bis %1 fehlen, liegen aber unter der Geräteanzahl</translation>
    </message>
    <message>
        <source>is not below the device count: the service does not drive it</source>
        <translation>liegt nicht unter der Geräteanzahl: der Dienst steuert es nicht an</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is where %2 is too</source>
        <translation>&quot;%1&quot; wird auch von %2 benutzt</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>: there is no built-in default, AcceptorSettings has &quot;%1&quot;</source>
        <translation>: es gibt keine eingebaute Vorgabe, AcceptorSettings hat &quot;%1&quot;</translation>
    </message>
    <message>
        <source>: the built-in default is &quot;%1&quot;, AcceptorSettings has &quot;%2&quot;</source>
        <translation>: die eingebaute Vorgabe ist &quot;%1&quot;, AcceptorSettings hat &quot;%2&quot;</translation>
    </message>
    <message>
        <source>differs from %1, which AcceptorSettings writes here</source>
        <translation>weicht von %1 ab, das AcceptorSettings hier einträgt</translation>
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
        <source>&quot;%1&quot;: expected SETTING=VALUE</source>
        <translation>&quot;%1&quot;: EINSTELLUNG=WERT erwartet</translation>
    </message>
    <message>
        <source>%1: there is no %2; velmo settings add-device makes %3</source>
        <translation>%1: %2 gibt es nicht; velmo settings add-device legt %3 an</translation>
    </message>
    <message>
        <source>%1 has no built-in default and gets that of %2</source>
        <translation>%1 hat keine eingebaute Vorgabe und erhält die von %2</translation>
    </message>
    <message>
        <source>%1 is not in the list</source>
        <translation>%1 ist nicht in der Liste</translation>
    </message>
    <message>
        <source>%1: there is no %2</source>
        <translation>%1: %2 gibt es nicht</translation>
    </message>
    <message>
        <source>%1 becomes %2</source>
        <translation>%1 wird zu %2</translation>
    </message>
    <message>
        <source>a service state</source>
        <translation>ein Dienstzustand</translation>
    </message>
    <message>
        <source>a formatted settings map</source>
        <translation>eine formatierte Einstellungs-Map</translation>
    </message>
    <message>
        <source>a session log</source>
        <translation>ein Sitzungsprotokoll</translation>
    </message>
    <message>
        <source>a device state or a line of a session log</source>
        <translation>ein Gerätezustand oder eine Zeile eines Sitzungsprotokolls</translation>
    </message>
    <message>
        <source>a filters file</source>
        <translation>eine Filterdatei</translation>
    </message>
    <message>
        <source>what velmo settings show --json prints</source>
        <translation>die Ausgabe von velmo settings show --json</translation>
    </message>
    <message>
        <source>a route map</source>
        <translation>eine Routentabelle</translation>
    </message>
    <message>
        <source>a list of anti-fishing limits</source>
        <translation>eine Liste von Grenzen des Fishing-Schutzes</translation>
    </message>
    <message>
        <source>the catalogue of devices</source>
        <translation>der Gerätekatalog</translation>
    </message>
    <message>
        <source>an empty list</source>
        <translation>eine leere Liste</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>%1: not a settings list: no element is a known setting</source>
        <translation>%1: keine Einstellungsliste: kein Element ist eine bekannte Einstellung</translation>
    </message>
    <message>
        <source>%1: not a settings list: looks like %2</source>
        <translation>%1: keine Einstellungsliste: sieht aus wie %2</translation>
    </message>
    <message>
        <source>The device is disabled.</source>
        <translation>Das Gerät ist gesperrt.</translation>
    </message>
    <message>
        <source>The device is halted.</source>
        <translation>Das Gerät ist angehalten.</translation>
    </message>
    <message>
        <source>The stacker is missing.</source>
        <translation>Der Stapler fehlt.</translation>
    </message>
    <message>
        <source>The stacker is full.</source>
        <translation>Der Stapler ist voll.</translation>
    </message>
    <message>
        <source>The device has a critical error: %1.</source>
        <translation>Das Gerät hat einen kritischen Fehler: %1.</translation>
    </message>
    <message>
        <source>The service tells of no device.</source>
        <translation>Der Dienst meldet kein Gerät.</translation>
    </message>
    <message>
        <source>Every device is disabled.</source>
        <translation>Alle Geräte sind gesperrt.</translation>
    </message>
    <message>
        <source>The device is not ready for notes; its state: %1.</source>
        <translation>Das Gerät ist nicht bereit für Scheine; sein Zustand: %1.</translation>
    </message>
    <message>
        <source>%1: %2 refused by A, accepted by B. A: %3</source>
        <translation>%1: %2 von A abgelehnt, von B zugelassen. A: %3</translation>
    </message>
    <message>
        <source>%1: %2 accepted by A, refused by B. B: %3</source>
        <translation>%1: %2 von A zugelassen, von B abgelehnt. B: %3</translation>
    </message>
    <message>
        <source>coin of %1</source>
        <translation>Münze zu %1</translation>
    </message>
    <message>
        <source>note of %1</source>
        <translation>Schein zu %1</translation>
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
        <source>Refused by the filters</source>
        <translation>Von den Filtern abgelehnt</translation>
    </message>
    <message>
        <source>taken although refused</source>
        <translation>trotz Ablehnung angenommen</translation>
    </message>
    <message>
        <source>Rejected by the device</source>
        <translation>Vom Gerät abgewiesen</translation>
    </message>
    <message>
        <source>Returned</source>
        <translation>Zurückgegeben</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Show:</source>
        <translation>Zeigen:</translation>
    </message>
    <message numerus="yes">
        <source>%n refused</source>
        <translation>
            <numerusform>%n abgelehnt</numerusform>
            <numerusform>%n abgelehnt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n taken</source>
        <translation>
            <numerusform>%n angenommen</numerusform>
            <numerusform>%n angenommen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rejected</source>
        <translation>
            <numerusform>%n abgewiesen</numerusform>
            <numerusform>%n abgewiesen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n returned</source>
        <translation>
            <numerusform>%n zurückgegeben</numerusform>
            <numerusform>%n zurückgegeben</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n unknown</source>
        <translation>
            <numerusform>%n unbekannt</numerusform>
            <numerusform>%n unbekannt</numerusform>
        </translation>
    </message>
    <message>
        <source>refused by the filters</source>
        <translation>von den Filtern abgelehnt</translation>
    </message>
    <message>
        <source>taken</source>
        <translation>angenommen</translation>
    </message>
    <message>
        <source>rejected by the device</source>
        <translation>vom Gerät abgewiesen</translation>
    </message>
    <message>
        <source>returned</source>
        <translation>zurückgegeben</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>Where much happens at once, the pictures are stretched. A mark leads to its sentence, a sentence to its mark and to what it speaks of.</source>
        <translation>Wo vieles auf einmal geschieht, sind die Bilder gestreckt. Ein Zeichen führt zu seinem Satz, ein Satz zu seinem Zeichen und zu dem, wovon er handelt.</translation>
    </message>
    <message>
        <source>en</source>
        <comment>language code</comment>
        <extracomment>The language of these words, for the attribute lang of HTML.</extracomment>
        <translation>de</translation>
    </message>
    <message numerus="yes">
        <source>%n lines could not be read and were skipped</source>
        <translation>
            <numerusform>%n Zeile war nicht lesbar und wurde übersprungen</numerusform>
            <numerusform>%n Zeilen waren nicht lesbar und wurden übersprungen</numerusform>
        </translation>
    </message>
    <message>
        <source>lines %1 to %2</source>
        <translation>Zeilen %1 bis %2</translation>
    </message>
    <message>
        <source>Picture, %1</source>
        <translation>Bild, %1</translation>
    </message>
    <message>
        <source>No note to tell of.</source>
        <translation>Zu keinem Schein gibt es etwas zu sagen.</translation>
    </message>
    <message numerus="yes">
        <source>%n sessions</source>
        <translation>
            <numerusform>%n Sitzung</numerusform>
            <numerusform>%n Sitzungen</numerusform>
        </translation>
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
        <source>The answers may be wrong</source>
        <translation>Die Antworten können falsch sein</translation>
    </message>
    <message>
        <source>What became of each note, and why</source>
        <translation>Was aus jedem Schein wurde und warum</translation>
    </message>
    <message>
        <source>None: every note is accepted.</source>
        <translation>Keine: jeder Schein wird zugelassen.</translation>
    </message>
    <message>
        <source>Filters in force</source>
        <translation>Wirksame Filter</translation>
    </message>
    <message>
        <source>idling</source>
        <translation>wartet</translation>
    </message>
    <message>
        <source>accepting</source>
        <translation>nimmt an</translation>
    </message>
    <message>
        <source>accepted</source>
        <translation>angenommen</translation>
    </message>
    <message>
        <source>rejected</source>
        <translation>abgewiesen</translation>
    </message>
    <message>
        <source>stacking</source>
        <translation>stapelt ein</translation>
    </message>
    <message>
        <source>stacked</source>
        <translation>eingestapelt</translation>
    </message>
    <message>
        <source>returning</source>
        <translation>gibt zurück</translation>
    </message>
    <message>
        <source>jammed</source>
        <translation>verklemmt</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>beschäftigt</translation>
    </message>
    <message>
        <source>updating</source>
        <translation>aktualisiert sich</translation>
    </message>
    <message>
        <source>dispensing</source>
        <translation>zahlt aus</translation>
    </message>
    <message>
        <source>dispensed</source>
        <translation>ausgezahlt</translation>
    </message>
    <message>
        <source>floating</source>
        <translation>schöpft ab</translation>
    </message>
    <message>
        <source>floated</source>
        <translation>abgeschöpft</translation>
    </message>
    <message>
        <source>emptying</source>
        <translation>leert</translation>
    </message>
    <message>
        <source>emptied</source>
        <translation>geleert</translation>
    </message>
    <message>
        <source>unknown state</source>
        <translation>unbekannter Zustand</translation>
    </message>
    <message>
        <source>accepting a note</source>
        <translation>nimmt einen Schein an</translation>
    </message>
    <message>
        <source>keeping it</source>
        <translation>behält ihn</translation>
    </message>
    <message>
        <source>giving it back</source>
        <translation>gibt ihn zurück</translation>
    </message>
    <message>
        <source>paying out</source>
        <translation>zahlt aus</translation>
    </message>
    <message>
        <source>jam, error or what else was the matter</source>
        <translation>Verklemmung, Fehler oder andere Störung</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>gesperrt</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>offline</translation>
    </message>
    <message>
        <source>halted</source>
        <translation>angehalten</translation>
    </message>
    <message>
        <source>critical error</source>
        <translation>kritischer Fehler</translation>
    </message>
    <message>
        <source>stacker missing</source>
        <translation>Stapler fehlt</translation>
    </message>
    <message>
        <source>stacker full</source>
        <translation>Stapler voll</translation>
    </message>
    <message>
        <source>Session %1 from line %2 to line %3</source>
        <translation>Sitzung %1 von Zeile %2 bis Zeile %3</translation>
    </message>
    <message>
        <source>time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>notes</source>
        <translation>Scheine</translation>
    </message>
    <message>
        <source>state</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>session sum</source>
        <translation>Sitzungssumme</translation>
    </message>
    <message>
        <source>limit %1</source>
        <translation>Grenze %1</translation>
    </message>
    <message>
        <source>expected a list of %1</source>
        <translation>Liste erwartet (%1)</translation>
    </message>
    <message>
        <source>not JSON: %1 (column %2)</source>
        <translation>kein JSON: %1 (Spalte %2)</translation>
    </message>
    <message>
        <source>Pay by card</source>
        <translation>Bitte mit Karte zahlen</translation>
    </message>
    <message>
        <source>Out of service</source>
        <translation>Außer Betrieb</translation>
    </message>
    <message>
        <source>Checking a note of %1...</source>
        <translation>Schein zu %1 wird geprüft...</translation>
    </message>
    <message>
        <source>Checking a coin of %1...</source>
        <translation>Münze zu %1 wird geprüft...</translation>
    </message>
    <message>
        <source>A note of %1 was accepted.</source>
        <translation>Ein Schein zu %1 wurde angenommen.</translation>
    </message>
    <message>
        <source>A coin of %1 was accepted.</source>
        <translation>Eine Münze zu %1 wurde angenommen.</translation>
    </message>
    <message>
        <source>Your note was not recognised. Please try another one.</source>
        <translation>Ihr Schein wurde nicht erkannt. Bitte versuchen Sie einen anderen.</translation>
    </message>
    <message>
        <source>Your coin was not recognised. Please try another one.</source>
        <translation>Ihre Münze wurde nicht erkannt. Bitte versuchen Sie eine andere.</translation>
    </message>
    <message>
        <source>Your note of %1 was returned. Please take it.</source>
        <translation>Ihr Schein zu %1 wurde zurückgegeben. Bitte nehmen Sie ihn.</translation>
    </message>
    <message>
        <source>Your coin of %1 was returned. Please take it.</source>
        <translation>Ihre Münze zu %1 wurde zurückgegeben. Bitte nehmen Sie sie.</translation>
    </message>
    <message>
        <source>Notes are not accepted at the moment. It comes back to you.</source>
        <translation>Zurzeit werden keine Scheine angenommen. Sie erhalten den Schein zurück.</translation>
    </message>
    <message>
        <source>Coins are not accepted at the moment. It comes back to you.</source>
        <translation>Zurzeit werden keine Münzen angenommen. Sie erhalten die Münze zurück.</translation>
    </message>
    <message>
        <source>After several rejections no note of %1 is accepted. It comes back to you; please try another value.</source>
        <translation>Nach mehreren Abweisungen wird kein Schein zu %1 mehr angenommen. Sie erhalten ihn zurück; bitte versuchen Sie einen anderen Nennwert.</translation>
    </message>
    <message>
        <source>After several rejections no coin of %1 is accepted. It comes back to you; please try another value.</source>
        <translation>Nach mehreren Abweisungen wird keine Münze zu %1 mehr angenommen. Sie erhalten sie zurück; bitte versuchen Sie einen anderen Nennwert.</translation>
    </message>
    <message>
        <source>No more notes of %1 are accepted in this payment. It comes back to you.</source>
        <translation>Bei dieser Zahlung werden keine weiteren Scheine zu %1 angenommen. Sie erhalten den Schein zurück.</translation>
    </message>
    <message>
        <source>No more coins of %1 are accepted in this payment. It comes back to you.</source>
        <translation>Bei dieser Zahlung werden keine weiteren Münzen zu %1 angenommen. Sie erhalten die Münze zurück.</translation>
    </message>
    <message>
        <source>This note would pass the limit of %2. It comes back to you.</source>
        <translation>Dieser Schein würde die Grenze von %2 überschreiten. Sie erhalten ihn zurück.</translation>
    </message>
    <message>
        <source>This coin would pass the limit of %2. It comes back to you.</source>
        <translation>Diese Münze würde die Grenze von %2 überschreiten. Sie erhalten sie zurück.</translation>
    </message>
    <message>
        <source>This note cannot be accepted. It comes back to you.</source>
        <translation>Dieser Schein kann nicht angenommen werden. Sie erhalten ihn zurück.</translation>
    </message>
    <message>
        <source>This coin cannot be accepted. It comes back to you.</source>
        <translation>Diese Münze kann nicht angenommen werden. Sie erhalten sie zurück.</translation>
    </message>
    <message>
        <source>The device is offline.</source>
        <translation>Das Gerät ist offline.</translation>
    </message>
    <message>
        <source>Accepting</source>
        <translation>Annahme</translation>
    </message>
    <message>
        <source>Stacker</source>
        <translation>Stapler</translation>
    </message>
    <message>
        <source>Stacker full</source>
        <translation>Stapler voll</translation>
    </message>
    <message>
        <source>Critical error</source>
        <translation>Kritischer Fehler</translation>
    </message>
    <message>
        <source>Halted</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>The service does not answer.</source>
        <translation>Der Dienst antwortet nicht.</translation>
    </message>
    <message>
        <source>The service&apos;s state cannot be read: %1.</source>
        <translation>Der Zustand des Dienstes ist nicht lesbar: %1.</translation>
    </message>
    <message>
        <source>The device failed with your note of %1 in it. Please call the staff.</source>
        <translation>Das Gerät ist ausgefallen, während Ihr Schein zu %1 darin war. Bitte rufen Sie das Personal.</translation>
    </message>
    <message>
        <source>The device failed with your coin of %1 in it. Please call the staff.</source>
        <translation>Das Gerät ist ausgefallen, während Ihre Münze zu %1 darin war. Bitte rufen Sie das Personal.</translation>
    </message>
    <message>
        <source>The broker refuses a subscription.</source>
        <translation>Der Broker lehnt ein Abonnement ab.</translation>
    </message>
    <message>
        <source>Connected to %1:%2.</source>
        <translation>Verbunden mit %1:%2.</translation>
    </message>
    <message>
        <source>broker &quot;%1&quot;: expected HOST or HOST:PORT</source>
        <translation>Broker &quot;%1&quot;: HOST oder HOST:PORT erwartet</translation>
    </message>
    <message>
        <source>%1:1: expected USER:PASSWORD</source>
        <translation>%1:1: BENUTZER:PASSWORT erwartet</translation>
    </message>
    <message>
        <source>a client certificate and its key go together</source>
        <translation>ein Client-Zertifikat und sein Schlüssel gehören zusammen</translation>
    </message>
    <message>
        <source>a client certificate needs the certificates to trust</source>
        <translation>ein Client-Zertifikat braucht die Zertifikate, denen vertraut wird</translation>
    </message>
    <message>
        <source>a broker needs libmosquitto: %1</source>
        <translation>ein Broker braucht libmosquitto: %1</translation>
    </message>
    <message>
        <source>expected a kiosk&apos;s summary</source>
        <translation>Zusammenfassung eines Kiosks erwartet</translation>
    </message>
    <message>
        <source>expected UTF-8</source>
        <translation>UTF-8 erwartet</translation>
    </message>
    <message>
        <source>The device does not work; its state: %1.</source>
        <translation>Das Gerät arbeitet nicht; sein Zustand: %1.</translation>
    </message>
    <message>
        <source>No connection to %1:%2 (%3)</source>
        <translation>Keine Verbindung zu %1:%2 (%3)</translation>
    </message>
    <message>
        <source>%1; next attempt in %2 s.</source>
        <translation>%1; nächster Versuch in %2 s.</translation>
    </message>
    <message numerus="yes">
        <source>The broker had no room for %n messages and dropped them. With mosquitto, max_queued_messages sets the room.</source>
        <translation>
            <numerusform>Der Broker hatte keinen Platz für %n Nachricht und hat sie verworfen. Bei mosquitto bestimmt max_queued_messages den Platz.</numerusform>
            <numerusform>Der Broker hatte keinen Platz für %n Nachrichten und hat sie verworfen. Bei mosquitto bestimmt max_queued_messages den Platz.</numerusform>
        </translation>
    </message>
    <message>
        <source>It is not known whether the device works; its state: %1.</source>
        <translation>Es ist nicht bekannt, ob das Gerät arbeitet; sein Zustand: %1.</translation>
    </message>
    <message>
        <source>expected an ISO 8601 time or milliseconds since 1970, in a year from 1 to 9999</source>
        <translation>ISO-8601-Zeit oder Millisekunden seit 1970 erwartet, in einem Jahr von 1 bis 9999</translation>
    </message>
    <message>
        <source>NUL byte</source>
        <translation>NUL-Byte</translation>
    </message>
    <message>
        <source>more than %1 blank lines</source>
        <translation>mehr als %1 Leerzeilen</translation>
    </message>
    <message>
        <source>%1 refused.</source>
        <translation>%1 abgelehnt.</translation>
    </message>
    <message>
        <source>%1 taken.</source>
        <translation>%1 angenommen.</translation>
    </message>
    <message>
        <source>%1 stuck in the device, neither taken nor returned.</source>
        <translation>%1 im Gerät stecken geblieben, weder angenommen noch zurückgegeben.</translation>
    </message>
    <message>
        <source>%1 rejected.</source>
        <translation>%1 abgewiesen.</translation>
    </message>
    <message>
        <source>%1 returned.</source>
        <translation>%1 zurückgegeben.</translation>
    </message>
    <message>
        <source>%1: the log does not say what became of it.</source>
        <translation>%1: Das Protokoll sagt nicht, was daraus wurde.</translation>
    </message>
    <message>
        <source>coin of unknown value</source>
        <translation>Münze unbekannten Nennwerts</translation>
    </message>
    <message>
        <source>note of unknown value</source>
        <translation>Schein unbekannten Nennwerts</translation>
    </message>
    <message>
        <source>It got stuck in the device (line %1).</source>
        <translation>Im Gerät stecken geblieben (Zeile %1).</translation>
    </message>
    <message>
        <source>It was last seen on its way through the device (line %1).</source>
        <translation>Zuletzt auf dem Weg durch das Gerät gesehen (Zeile %1).</translation>
    </message>
    <message>
        <source>It was credited all the same (line %1).</source>
        <translation>Dennoch gutgeschrieben (Zeile %1).</translation>
    </message>
    <message>
        <source>It was not credited.</source>
        <translation>Nicht gutgeschrieben.</translation>
    </message>
    <message>
        <source>By the device itself.</source>
        <translation>Durch das Gerät selbst.</translation>
    </message>
    <message>
        <source>Stuck in the device</source>
        <translation>Im Gerät stecken geblieben</translation>
    </message>
    <message>
        <source>its value came too late to ask the filters about it</source>
        <translation>der Nennwert kam zu spät, um die Filter dazu zu befragen</translation>
    </message>
    <message numerus="yes">
        <source>%n stuck</source>
        <translation>
            <numerusform>%n stecken geblieben</numerusform>
            <numerusform>%n stecken geblieben</numerusform>
        </translation>
    </message>
    <message>
        <source> (nearest known: %1)</source>
        <translation> (am ähnlichsten: %1)</translation>
    </message>
    <message>
        <source>unknown setting &quot;%1&quot;</source>
        <translation>unbekannte Einstellung &quot;%1&quot;</translation>
    </message>
    <message>
        <source>has &quot;%1&quot; more than once: which one counts is not certain</source>
        <translation>hat &quot;%1&quot; mehrfach: was davon gilt, ist nicht sicher</translation>
    </message>
    <message>
        <source>is ignored</source>
        <translation>wird nicht beachtet</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no model of the catalogue</source>
        <translation>&quot;%1&quot; ist kein Modell des Katalogs</translation>
    </message>
    <message>
        <source>a device of this model has no &quot;%1&quot;</source>
        <translation>ein Gerät dieses Modells hat kein &quot;%1&quot;</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>Standardausgabe</translation>
    </message>
    <message>
        <source>stuck in the device</source>
        <translation>im Gerät stecken geblieben</translation>
    </message>
    <message>
        <source>its value became %1 in line %2</source>
        <translation>der Nennwert wurde in Zeile %2 zu %1</translation>
    </message>
    <message>
        <source>what lay in it when the log began is not known</source>
        <translation>was darin lag, als das Protokoll begann, ist nicht bekannt</translation>
    </message>
    <message>
        <source>taken to have come back empty</source>
        <translation>gilt als leer zurückgekommen</translation>
    </message>
    <message>
        <source>the registry does not tell of it any more</source>
        <translation>das Register nennt diesen Kanal nicht mehr</translation>
    </message>
    <message numerus="yes">
        <source>%n pieces were filled in</source>
        <translation>
            <numerusform>%n Stück wurde aufgefüllt</numerusform>
            <numerusform>%n Stück wurden aufgefüllt</numerusform>
        </translation>
    </message>
    <message>
        <source>lines were skipped since it was told</source>
        <translation>seit der letzten Angabe wurden Zeilen übersprungen</translation>
    </message>
    <message>
        <source>expected cassette, channel or reject</source>
        <translation>cassette, channel oder reject erwartet</translation>
    </message>
    <message>
        <source>unknown column &quot;%1&quot;</source>
        <translation>unbekannte Spalte &quot;%1&quot;</translation>
    </message>
    <message>
        <source>column &quot;%1&quot; stands twice</source>
        <translation>Spalte &quot;%1&quot; ist doppelt</translation>
    </message>
    <message>
        <source>column &quot;%1&quot; is missing</source>
        <translation>Spalte &quot;%1&quot; fehlt</translation>
    </message>
    <message>
        <source>a quotation mark is not closed</source>
        <translation>ein Anführungszeichen ist nicht geschlossen</translation>
    </message>
    <message>
        <source>expected %1 cells as in the header, not %2</source>
        <translation>%1 Zellen wie in der Kopfzeile erwartet, nicht %2</translation>
    </message>
    <message>
        <source>expected a list</source>
        <translation>Liste erwartet</translation>
    </message>
    <message>
        <source>%1: element %2</source>
        <translation>%1: Element %2</translation>
    </message>
    <message>
        <source>expected texts and numbers</source>
        <translation>Texte und Zahlen erwartet</translation>
    </message>
    <message>
        <source>the logs have no such device or period</source>
        <translation>in den Protokollen gibt es kein solches Gerät oder keinen solchen Zeitraum</translation>
    </message>
    <message>
        <source>several threads drive the device: say which in a column &quot;thread&quot;</source>
        <translation>mehrere Threads steuern das Gerät an: den richtigen in einer Spalte &quot;thread&quot; angeben</translation>
    </message>
    <message>
        <source>right</source>
        <translation>stimmt</translation>
    </message>
    <message>
        <source>%1 short</source>
        <translation>%1 zu wenig</translation>
    </message>
    <message>
        <source>%1 over</source>
        <translation>%1 zu viel</translation>
    </message>
    <message>
        <source>nothing is counted</source>
        <translation>nichts ist gezählt</translation>
    </message>
    <message>
        <source>several rows fit: say which in a column &quot;channel&quot; or &quot;currency&quot;</source>
        <translation>mehrere Zeilen passen: die richtige in einer Spalte &quot;channel&quot; oder &quot;currency&quot; angeben</translation>
    </message>
    <message>
        <source>the device has no such place</source>
        <translation>das Gerät hat keinen solchen Ort</translation>
    </message>
    <message>
        <source>What the cassette held, from time to time</source>
        <translation>Inhalt der Kassette im Lauf der Zeit</translation>
    </message>
    <message>
        <source>may be</source>
        <translation>vielleicht</translation>
    </message>
    <message>
        <source>at least</source>
        <translation>mindestens</translation>
    </message>
    <message>
        <source>Period %1, %2: %3 taken out</source>
        <translation>Zeitraum %1, %2: %3 entnommen</translation>
    </message>
    <message>
        <source>In the end: %1</source>
        <translation>Am Ende: %1</translation>
    </message>
    <message>
        <source>a log could not be read</source>
        <translation>ein Protokoll war nicht lesbar</translation>
    </message>
    <message>
        <source>%1:%2 to %3:%4</source>
        <translation>%1:%2 bis %3:%4</translation>
    </message>
    <message>
        <source>taken out with %1</source>
        <translation>entnommen mit %1</translation>
    </message>
    <message>
        <source>Of money the log tells nothing.</source>
        <translation>Über Geld sagt das Protokoll nichts.</translation>
    </message>
    <message>
        <source>in all</source>
        <translation>insgesamt</translation>
    </message>
    <message>
        <source>as of %1</source>
        <translation>Stand: %1</translation>
    </message>
    <message>
        <source>What lies where</source>
        <translation>Was wo liegt</translation>
    </message>
    <message>
        <source>Why</source>
        <translation>Warum</translation>
    </message>
    <message>
        <source>in the cassette: %1</source>
        <translation>in der Kassette: %1</translation>
    </message>
    <message>
        <source>taken out: %1</source>
        <translation>entnommen: %1</translation>
    </message>
    <message>
        <source>The device says of its cash: %1</source>
        <translation>Das Gerät meldet zu seinem Geld: %1</translation>
    </message>
    <message>
        <source>Period %1</source>
        <translation>Zeitraum %1</translation>
    </message>
    <message>
        <source>since %1</source>
        <translation>seit %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>device %1, thread %2</source>
        <translation>Gerät %1, Thread %2</translation>
    </message>
    <message>
        <source>What the cassette held</source>
        <translation>Inhalt der Kassette</translation>
    </message>
    <message>
        <source>The curve adds up the face values of all currencies.</source>
        <translation>Die Kurve addiert die Nennwerte aller Währungen.</translation>
    </message>
    <message>
        <source>What does not add up</source>
        <translation>Was nicht stimmt</translation>
    </message>
    <message>
        <source>Kiosk</source>
        <translation>Kiosk</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Nennwert</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Zeitraum</translation>
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
        <source>Difference</source>
        <translation>Differenz</translation>
    </message>
    <message>
        <source>nothing in the logs</source>
        <translation>nichts in den Protokollen</translation>
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
        <source>What was counted</source>
        <translation>Was gezählt wurde</translation>
    </message>
    <message>
        <source>Everything adds up.</source>
        <translation>Alles stimmt.</translation>
    </message>
    <message numerus="yes">
        <source>%n things do not add up.</source>
        <translation>
            <numerusform>%n Widerspruch gefunden.</numerusform>
            <numerusform>%n Widersprüche gefunden.</numerusform>
        </translation>
    </message>
    <message>
        <source>Everything that was counted is right.</source>
        <translation>Alles, was gezählt wurde, stimmt.</translation>
    </message>
    <message>
        <source>Of %1 counts %2 are not right.</source>
        <translation>Zählungen, die nicht stimmen: %2 von %1.</translation>
    </message>
    <message>
        <source>certain to be there</source>
        <translation>sicher vorhanden</translation>
    </message>
    <message>
        <source>may be there besides</source>
        <translation>vielleicht außerdem vorhanden</translation>
    </message>
    <message>
        <source>at least so much; the log does not tell how much more</source>
        <translation>mindestens so viel; wie viel mehr, sagt das Protokoll nicht</translation>
    </message>
    <message>
        <source>the cassette is taken out, with so much</source>
        <translation>die Kassette wird entnommen, mit so viel</translation>
    </message>
    <message>
        <source>Where is the money?</source>
        <translation>Wo ist das Geld?</translation>
    </message>
    <message>
        <source>How the logs were read</source>
        <translation>Wie die Protokolle gelesen wurden</translation>
    </message>
    <message numerus="yes">
        <source>%n pieces got stuck on their way</source>
        <translation>
            <numerusform>%n Stück ist unterwegs stecken geblieben</numerusform>
            <numerusform>%n Stück sind unterwegs stecken geblieben</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pieces are on their way</source>
        <translation>
            <numerusform>%n Stück ist unterwegs</numerusform>
            <numerusform>%n Stück sind unterwegs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>of %n pieces the log does not say what became of them</source>
        <translation>
            <numerusform>was aus %n Stück wurde, sagt das Protokoll nicht</numerusform>
            <numerusform>was aus %n Stück wurde, sagt das Protokoll nicht</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>lines were skipped while %n pieces were on their way</source>
        <translation>
            <numerusform>es wurden Zeilen übersprungen, während %n Stück unterwegs war</numerusform>
            <numerusform>es wurden Zeilen übersprungen, während %n Stück unterwegs waren</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the value of %n pieces changed while they were on their way</source>
        <translation>
            <numerusform>der Nennwert von %n Stück änderte sich unterwegs</numerusform>
            <numerusform>der Nennwert von %n Stück änderte sich unterwegs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pieces of unknown value were taken</source>
        <translation>
            <numerusform>%n Stück unbekannten Nennwerts wurde angenommen</numerusform>
            <numerusform>%n Stück unbekannten Nennwerts wurden angenommen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>of %n pieces the registry does not tell whether they are in a channel</source>
        <translation>
            <numerusform>ob %n Stück in einem Kanal ist, sagt das Register nicht</numerusform>
            <numerusform>ob %n Stück in einem Kanal sind, sagt das Register nicht</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>by the device&apos;s counter %n pieces are missing from the log</source>
        <translation>
            <numerusform>nach dem Zähler des Geräts fehlt im Protokoll %n Stück</numerusform>
            <numerusform>nach dem Zähler des Geräts fehlen im Protokoll %n Stück</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n credits came without a piece</source>
        <translation>
            <numerusform>%n Gutschrift kam ohne Schein oder Münze</numerusform>
            <numerusform>%n Gutschriften kamen ohne Schein oder Münze</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lines were skipped</source>
        <translation>
            <numerusform>%n Zeile wurde übersprungen</numerusform>
            <numerusform>%n Zeilen wurden übersprungen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>lines were skipped in which the cassette may have been emptied</source>
        <translation>
            <numerusform>es wurden Zeilen übersprungen, in denen die Kassette vielleicht geleert wurde</numerusform>
            <numerusform>es wurden Zeilen übersprungen, in denen die Kassette vielleicht geleert wurde</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the registry was told for the first time while channels were floated or emptied</source>
        <translation>
            <numerusform>das Register wurde erstmals gemeldet, während Kanäle abgeschöpft oder geleert wurden</numerusform>
            <numerusform>das Register wurde erstmals gemeldet, während Kanäle abgeschöpft oder geleert wurden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pieces left a channel, and the log does not say why</source>
        <translation>
            <numerusform>%n Stück verließ einen Kanal, und das Protokoll sagt nicht, warum</numerusform>
            <numerusform>%n Stück verließen einen Kanal, und das Protokoll sagt nicht, warum</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pieces came or went while the cassette was out, and are not counted here</source>
        <translation>
            <numerusform>%n Stück kam oder ging, während die Kassette entnommen war, und ist hier nicht gezählt</numerusform>
            <numerusform>%n Stück kamen oder gingen, während die Kassette entnommen war, und sind hier nicht gezählt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the log does not tell the end of a payout, a float or an emptying, %n pieces may be on their way</source>
        <translation>
            <numerusform>das Protokoll nennt das Ende einer Auszahlung, Abschöpfung oder Leerung nicht, %n Stück ist vielleicht unterwegs</numerusform>
            <numerusform>das Protokoll nennt das Ende einer Auszahlung, Abschöpfung oder Leerung nicht, %n Stück sind vielleicht unterwegs</numerusform>
        </translation>
    </message>
    <message>
        <source>cassette</source>
        <translation>Kassette</translation>
    </message>
    <message>
        <source>channel %1</source>
        <translation>Kanal %1</translation>
    </message>
    <message>
        <source>reject</source>
        <translation>Ausschuss</translation>
    </message>
    <message>
        <source>Currency</source>
        <translation>Währung</translation>
    </message>
    <message>
        <source>Opening</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Zugang</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Abgang</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>Verlagert</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>Sum now</source>
        <translation>Summe</translation>
    </message>
    <message>
        <source>Kiosk %1: %2</source>
        <translation>Kiosk %1: %2</translation>
    </message>
    <message>
        <source>channels</source>
        <translation>Kanäle</translation>
    </message>
    <message>
        <source>the end</source>
        <translation>zum Ende</translation>
    </message>
    <message>
        <source>no coin until then</source>
        <translation>bis dahin keine Münze</translation>
    </message>
    <message>
        <source>no note until then</source>
        <translation>bis dahin kein Schein</translation>
    </message>
    <message>
        <source>last coin %1</source>
        <translation>letzte Münze %1</translation>
    </message>
    <message>
        <source>last note %1</source>
        <translation>letzter Schein %1</translation>
    </message>
    <message>
        <source>%1: from %2 to %3: %4; %5</source>
        <extracomment>&quot;DEVICE: from 10:05:12 (line 3) to the end: disabled, stacker full; last note ...&quot;</extracomment>
        <translation>%1: von %2 bis %3: %4; %5</translation>
    </message>
    <message>
        <source>taken and not credited</source>
        <translation>angenommen und nicht gutgeschrieben</translation>
    </message>
    <message>
        <source>credited with another amount</source>
        <translation>mit einem anderen Betrag gutgeschrieben</translation>
    </message>
    <message>
        <source>credited and not taken</source>
        <translation>gutgeschrieben und nicht angenommen</translation>
    </message>
    <message>
        <source>credited without a note</source>
        <translation>ohne Schein gutgeschrieben</translation>
    </message>
    <message>
        <source>less credit within a session</source>
        <translation>gesunkenes Guthaben innerhalb einer Sitzung</translation>
    </message>
    <message>
        <source>paid another amount than left the channels</source>
        <translation>anderer Betrag ausgezahlt, als die Kanäle verließ</translation>
    </message>
    <message>
        <source>a payout without an end</source>
        <translation>eine Auszahlung ohne Ende</translation>
    </message>
    <message>
        <source>a channel&apos;s content changed for no reason</source>
        <translation>der Inhalt eines Kanals änderte sich ohne Grund</translation>
    </message>
    <message>
        <source>notes that the log does not have</source>
        <translation>Scheine, die das Protokoll nicht hat</translation>
    </message>
    <message>
        <source>The session&apos;s sum rose by %1 while the device accepted, without a note. The value of one would clear this.</source>
        <translation>Die Sitzungssumme stieg bei der Annahme um %1, ohne Schein. Der Wert eines Scheins würde das klären.</translation>
    </message>
    <message>
        <source>The session&apos;s sum rose by %1 for a %2 that was not taken. That it was stacked would clear this.</source>
        <translation>Die Sitzungssumme stieg um %1; nicht angenommen: %2. Dass das Geld eingestapelt wurde, würde das klären.</translation>
    </message>
    <message>
        <source>A %1 was taken, and the session&apos;s sum did not rise. That it rises before the next note, payout or session would clear this.</source>
        <translation>Angenommen: %1, aber die Sitzungssumme stieg nicht. Dass sie vor dem nächsten Schein, der nächsten Auszahlung oder Sitzung steigt, würde das klären.</translation>
    </message>
    <message>
        <source>The session&apos;s sum rose by %1 for a %2. That it rises by %3 in all would clear this.</source>
        <translation>Die Sitzungssumme stieg um %1; angenommen: %2. Dass sie insgesamt um %3 steigt, würde das klären.</translation>
    </message>
    <message>
        <source>A payout began, and the log does not tell its end. &quot;dispensed&quot; before the next note, payout or session would clear this.</source>
        <translation>Eine Auszahlung begann, und das Protokoll nennt ihr Ende nicht. &quot;dispensed&quot; vor dem nächsten Schein, der nächsten Auszahlung oder Sitzung würde das klären.</translation>
    </message>
    <message>
        <source>%1 was paid, and %2 left the channels without being rejected. That both are the same before the next note, payout or session would clear this.</source>
        <translation>Ausgezahlt: %1; ohne Aussonderung aus den Kanälen gegangen: %2. Dass beides vor dem nächsten Schein, der nächsten Auszahlung oder Sitzung gleich ist, würde das klären.</translation>
    </message>
    <message>
        <source>The session&apos;s sum rose by %1 without a note. A note that was offered before, with nothing between, would clear this.</source>
        <translation>Die Sitzungssumme stieg ohne Schein um %1. Ein zuvor eingegebener Schein, mit nichts dazwischen, würde das klären.</translation>
    </message>
    <message>
        <source>The session&apos;s sum fell from %1 to %2. The start of a session before this line would clear this.</source>
        <translation>Die Sitzungssumme fiel von %1 auf %2. Der Beginn einer Sitzung vor dieser Zeile würde das klären.</translation>
    </message>
    <message>
        <source>The registry changed: %1. A payout, a float or an emptying that began before, with nothing between, would clear this.</source>
        <translation>Das Register änderte sich: %1. Eine zuvor begonnene Auszahlung, Abschöpfung oder Leerung, mit nichts dazwischen, würde das klären.</translation>
    </message>
    <message numerus="yes">
        <source>The device counted %1, and the log has %2 of them: %n notes are missing from the log. Their lines would clear this.</source>
        <translation>
            <numerusform>Das Gerät zählte %1, und das Protokoll hat davon %2: im Protokoll fehlt %n Schein. Seine Zeilen würden das klären.</numerusform>
            <numerusform>Das Gerät zählte %1, und das Protokoll hat davon %2: im Protokoll fehlen %n Scheine. Ihre Zeilen würden das klären.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1: %2.</translation>
    </message>
    <message>
        <source>channel %1 (%2)</source>
        <translation>Kanal %1 (%2)</translation>
    </message>
    <message>
        <source>%1 went from %2 to %3</source>
        <translation>%1 von %2 auf %3</translation>
    </message>
    <message>
        <source>rejects of %1 went from %2 to %3</source>
        <translation>%1: Ausschuss von %2 auf %3</translation>
    </message>
    <message numerus="yes">
        <source>%n that do not add up</source>
        <translation>
            <numerusform>%n Widerspruch</numerusform>
            <numerusform>%n Widersprüche</numerusform>
        </translation>
    </message>
    <message>
        <source>the log is of kiosk &quot;%1&quot; so far, and of &quot;%2&quot; here; velmo cash tells kiosks apart</source>
        <translation>das Protokoll ist bisher von Kiosk &quot;%1&quot; und hier von &quot;%2&quot;; velmo cash hält Kioske auseinander</translation>
    </message>
    <message>
        <source>Does not add up</source>
        <translation>Stimmt nicht</translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation>mindestens %1</translation>
    </message>
    <message>
        <source>&quot;kiosk&quot;: expected a name</source>
        <translation>&quot;kiosk&quot;: Name erwartet</translation>
    </message>
    <message>
        <source>does not add up</source>
        <translation>stimmt nicht</translation>
    </message>
    <message>
        <source>%1 may be thousands or a decimal: expected a whole number without a comma or point</source>
        <translation>%1 kann Tausender oder eine Dezimalzahl sein: ganze Zahl ohne Komma und Punkt erwartet</translation>
    </message>
    <message>
        <source>In the logs everything adds up.</source>
        <translation>In den Protokollen stimmt alles.</translation>
    </message>
    <message numerus="yes">
        <source>%n rows were not counted.</source>
        <translation>
            <numerusform>%n Zeile wurde nicht gezählt.</numerusform>
            <numerusform>%n Zeilen wurden nicht gezählt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Devices are left out: the broker has no room for all.</source>
        <translation>Geräte sind weggelassen: Der Broker hat nicht für alle Platz.</translation>
    </message>
    <message>
        <source>topic &quot;%1&quot;: expected one or two levels that are + or %2, and no more than one that is %3</source>
        <translation>Topic &quot;%1&quot;: eine oder zwei Ebenen + oder %2 erwartet, und nicht mehr als eine Ebene %3</translation>
    </message>
    <message>
        <source>part &quot;%1&quot;: expected one of so many, as 2/4</source>
        <translation>Teil &quot;%1&quot;: Nummer und Anzahl erwartet, etwa 2/4</translation>
    </message>
    <message>
        <source>Qt&apos;s driver %1 is not installed</source>
        <translation>der Qt-Treiber %1 ist nicht installiert</translation>
    </message>
    <message>
        <source>there is no history in it</source>
        <translation>darin ist kein Verlauf</translation>
    </message>
    <message>
        <source>expected a file</source>
        <translation>Datei erwartet</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>es gibt keine solche Datei</translation>
    </message>
    <message>
        <source>expected postgresql://user@host:port/database</source>
        <translation>postgresql://user@host:port/database erwartet</translation>
    </message>
    <message>
        <source>is of version %1, which is later than this program&apos;s %2</source>
        <translation>hat Version %1, neuer als die dieses Programms (%2)</translation>
    </message>
    <message>
        <source>is the database of something else</source>
        <translation>ist die Datenbank von etwas anderem</translation>
    </message>
    <message>
        <source>The history&apos;s database is back.</source>
        <translation>Die Datenbank des Verlaufs ist wieder da.</translation>
    </message>
    <message>
        <source>another worker writes of the same kiosks</source>
        <translation>ein anderer Worker schreibt über dieselben Kioske</translation>
    </message>
    <message>
        <source>The cassette has not been full yet: how much it holds is not known.</source>
        <translation>Die Kassette war noch nicht voll: Wie viel sie fasst, ist nicht bekannt.</translation>
    </message>
    <message>
        <source>Its level is known for less than three days.</source>
        <translation>Der Füllstand ist seit weniger als drei Tagen bekannt.</translation>
    </message>
    <message>
        <source>Nothing was inserted in the last two weeks.</source>
        <translation>In den letzten zwei Wochen wurde nichts eingegeben.</translation>
    </message>
    <message>
        <source>Its level has not fallen in the last two weeks.</source>
        <translation>Der Füllstand ist in den letzten zwei Wochen nicht gesunken.</translation>
    </message>
    <message>
        <source>The days differ too much.</source>
        <translation>Die Tage unterscheiden sich zu stark.</translation>
    </message>
    <message>
        <source>No worker writes to the history: what lasts in it may be over.</source>
        <translation>Kein Worker schreibt in den Verlauf: Was darin andauert, ist vielleicht vorbei.</translation>
    </message>
    <message>
        <source>the file was removed or replaced</source>
        <translation>die Datei wurde entfernt oder ersetzt</translation>
    </message>
    <message>
        <source>The kiosk has been silent for more than a day.</source>
        <translation>Der Kiosk ist seit mehr als einem Tag stumm.</translation>
    </message>
    <message>
        <source>the number of an incident: expected a text</source>
        <translation>die Nummer eines Vorfalls: Text erwartet</translation>
    </message>
    <message>
        <source>It is not known what became of your note of %1. Please call the staff.</source>
        <translation>Es ist nicht bekannt, was aus Ihrem Schein zu %1 wurde. Bitte rufen Sie das Personal.</translation>
    </message>
    <message>
        <source>It is not known what became of your coin of %1. Please call the staff.</source>
        <translation>Es ist nicht bekannt, was aus Ihrer Münze zu %1 wurde. Bitte rufen Sie das Personal.</translation>
    </message>
    <message>
        <source>The device failed with your note in it. Please call the staff.</source>
        <translation>Das Gerät ist ausgefallen, während Ihr Schein darin war. Bitte rufen Sie das Personal.</translation>
    </message>
    <message>
        <source>The device failed with your coin in it. Please call the staff.</source>
        <translation>Das Gerät ist ausgefallen, während Ihre Münze darin war. Bitte rufen Sie das Personal.</translation>
    </message>
    <message>
        <source>The PIN given has to have %1 to %2 digits.</source>
        <translation>Die angegebene PIN muss %1 bis %2 Ziffern haben.</translation>
    </message>
    <message>
        <source>No PIN is given.</source>
        <translation>Es ist keine PIN angegeben.</translation>
    </message>
    <message>
        <source>%1: is not a file</source>
        <translation>%1: ist keine Datei</translation>
    </message>
    <message>
        <source>%1: line 1: expected a PIN of %2 to %3 digits</source>
        <translation>%1: Zeile 1: PIN aus %2 bis %3 Ziffern erwartet</translation>
    </message>
    <message>
        <source>The service has told nothing for %1 s.</source>
        <translation>Der Dienst hat seit %1 s nichts gemeldet.</translation>
    </message>
    <message>
        <source>Checking your note...</source>
        <translation>Ihr Schein wird geprüft...</translation>
    </message>
    <message>
        <source>Checking your coin...</source>
        <translation>Ihre Münze wird geprüft...</translation>
    </message>
    <message>
        <source>It is not known what became of your note. Please call the staff.</source>
        <translation>Es ist nicht bekannt, was aus Ihrem Schein wurde. Bitte rufen Sie das Personal.</translation>
    </message>
    <message>
        <source>It is not known what became of your coin. Please call the staff.</source>
        <translation>Es ist nicht bekannt, was aus Ihrer Münze wurde. Bitte rufen Sie das Personal.</translation>
    </message>
    <message>
        <source>Money of a customer is stuck.</source>
        <translation>Geld eines Kunden ist stecken geblieben.</translation>
    </message>
    <message>
        <source>It is not known what became of a customer&apos;s money.</source>
        <translation>Es ist nicht bekannt, was aus dem Geld eines Kunden wurde.</translation>
    </message>
    <message>
        <source>Money of a customer is stuck: %1.</source>
        <translation>Geld eines Kunden ist stecken geblieben: %1.</translation>
    </message>
    <message>
        <source>It is not known what became of a customer&apos;s money: %1.</source>
        <translation>Es ist nicht bekannt, was aus dem Geld eines Kunden wurde: %1.</translation>
    </message>
    <message>
        <source>no translations for language &quot;%1&quot;; there are: %2</source>
        <translation>keine Übersetzungen für die Sprache &quot;%1&quot;; es gibt: %2</translation>
    </message>
    <message>
        <source>the filter cannot hold %1 attempts (&quot;denom&quot; %2): it takes %3</source>
        <translation>der Filter fasst keine %1 Versuche (&quot;denom&quot; %2): es gelten %3</translation>
    </message>
    <message>
        <source>the filter cannot hold the sum %1: it takes %2</source>
        <translation>der Filter fasst die Summe %1 nicht: es gilt %2</translation>
    </message>
    <message>
        <source>Its level has not been told for more than a day.</source>
        <translation>Der Bestand ist seit mehr als einem Tag nicht gemeldet worden.</translation>
    </message>
</context>
</TS>
