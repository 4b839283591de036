<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Tessark::PropertyPanel::PanelWindow</name>
    <message>
        <source>Reset All</source>
        <translation>Alle zurücksetzen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save the changed values?</source>
        <translation>Geänderte Werte speichern?</translation>
    </message>
    <message>
        <source>Changes that are not saved are lost.</source>
        <translation>Nicht gespeicherte Änderungen gehen verloren.</translation>
    </message>
    <message>
        <source>%1 was written by another program meanwhile</source>
        <translation>%1 wurde inzwischen von einem anderen Programm geschrieben</translation>
    </message>
    <message>
        <source>Replace what another program has written to %1?</source>
        <translation>Ersetzen, was ein anderes Programm in %1 geschrieben hat?</translation>
    </message>
    <message>
        <source>It was written while this window was open.</source>
        <translation>Es wurde geschrieben, während dieses Fenster offen war.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyPanel::Texts</name>
    <message>
        <source>Shows a panel for a JSON list of properties and writes the values that the user gave them, as a JSON object of name to value.</source>
        <translation>Zeigt ein Panel für eine JSON-Liste von Eigenschaften und schreibt die Werte, die der Benutzer ihnen gegeben hat, als JSON-Objekt von Namen zu Werten.</translation>
    </message>
    <message>
        <source>The property list; - reads standard input. Without it a built-in list is shown.</source>
        <translation>Die Eigenschaftsliste; - liest die Standardeingabe. Ohne sie wird eine eingebaute Liste gezeigt.</translation>
    </message>
    <message>
        <source>Start from the values in &lt;FILE&gt; instead of the defaults.</source>
        <translation>Mit den Werten aus &lt;FILE&gt; statt mit den Standardwerten beginnen.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>DATEI</translation>
    </message>
    <message>
        <source>Start from the values in the INI file &lt;FILE&gt;, if it exists, and save to it. Values of --values go before its own; its other keys stay.</source>
        <translation>Mit den Werten aus der INI-Datei &lt;FILE&gt; beginnen, falls es sie gibt, und in sie speichern. Werte aus --values haben Vorrang; ihre anderen Schlüssel bleiben.</translation>
    </message>
    <message>
        <source>Save to &lt;FILE&gt;, whole or not at all, instead of to standard output.</source>
        <translation>In &lt;FILE&gt; speichern, ganz oder gar nicht, statt auf die Standardausgabe.</translation>
    </message>
    <message>
        <source>Print each change at once as one line of JSON: &quot;name&quot;, &quot;value&quot; and, in &quot;continued&quot;, whether it goes on with the change before it.</source>
        <translation>Jede Änderung sofort als eine Zeile JSON ausgeben: &quot;name&quot;, &quot;value&quot; und in &quot;continued&quot;, ob sie die vorige Änderung fortsetzt.</translation>
    </message>
    <message>
        <source>When --live prints a change: live (the default), at once; rate:&lt;N&gt;, at most N times a second, N from 1 to 1000, and always the last; end, when the drag or the typing ends.</source>
        <translation>Wann --live eine Änderung ausgibt: live (Standard), sofort; rate:&lt;N&gt;, höchstens N-mal in der Sekunde, N von 1 bis 1000, und immer die letzte; end, wenn das Ziehen oder Tippen endet.</translation>
    </message>
    <message>
        <source>WHEN</source>
        <translation>WANN</translation>
    </message>
    <message>
        <source>List all that is wrong with the list and the values; show nothing.</source>
        <translation>Alles auflisten, was an der Liste und den Werten falsch ist; nichts anzeigen.</translation>
    </message>
    <message>
        <source>Draw the whole panel to &lt;PNG&gt;, and each further tab page to a file named after it, and print their names; show nothing.</source>
        <translation>Das ganze Panel nach &lt;PNG&gt; zeichnen, jede weitere Registerkarte in eine nach ihr benannte Datei, und die Namen ausgeben; nichts anzeigen.</translation>
    </message>
    <message>
        <source>PNG</source>
        <translation>PNG</translation>
    </message>
    <message>
        <source>Size of the window, or of the picture; a picture grows to hold the panel.</source>
        <translation>Größe des Fensters oder des Bildes; ein Bild wächst, bis das Panel hineinpasst.</translation>
    </message>
    <message>
        <source>WxH</source>
        <translation>BxH</translation>
    </message>
    <message>
        <source>THEME</source>
        <translation>THEMA</translation>
    </message>
    <message>
        <source>Let the list name pictures anywhere and have style sheets. Without it, its pictures must lie in its folder or below.</source>
        <translation>Der Liste erlauben, Bilder an jedem Ort zu nennen und Stylesheets zu haben. Sonst müssen ihre Bilder in ihrem Ordner oder darunter liegen.</translation>
    </message>
    <message>
        <source>Print the version.</source>
        <translation>Die Version ausgeben.</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>Diese Hilfe ausgeben.</translation>
    </message>
    <message>
        <source>There can be one property list only; &quot;%1&quot; is one too many.</source>
        <translation>Es kann nur eine Eigenschaftsliste geben; „%1“ ist eine zu viel.</translation>
    </message>
    <message>
        <source>The name of the property list is empty.</source>
        <translation>Der Name der Eigenschaftsliste ist leer.</translation>
    </message>
    <message>
        <source>--%1 needs the name of a file.</source>
        <translation>--%1 braucht den Namen einer Datei.</translation>
    </message>
    <message>
        <source>--check and --render cannot be used together.</source>
        <translation>--check und --render können nicht zusammen verwendet werden.</translation>
    </message>
    <message>
        <source>--settings and --output cannot name the same file.</source>
        <translation>--settings und --output können nicht dieselbe Datei nennen.</translation>
    </message>
    <message>
        <source>--commit is of use only with --live.</source>
        <translation>--commit ist nur mit --live von Nutzen.</translation>
    </message>
    <message>
        <source>The list and the values cannot both come from standard input.</source>
        <translation>Liste und Werte können nicht beide von der Standardeingabe kommen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a size; write width x height, such as 640x480, each from 1 to %2.</source>
        <translation>„%1“ ist keine Größe; schreiben Sie Breite x Höhe, etwa 640x480, jeweils von 1 bis %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no time for --commit; choose live, end, or rate:N with N from 1 to 1000.</source>
        <translation>„%1“ ist kein Zeitpunkt für --commit; wählen Sie live, end oder rate:N mit N von 1 bis 1000.</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>es ist keine Datei</translation>
    </message>
    <message>
        <source>it is write-protected</source>
        <translation>sie ist schreibgeschützt</translation>
    </message>
    <message>
        <source>built-in list</source>
        <translation>eingebaute Liste</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>Standardeingabe</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Cannot write %1: the panel takes %2 x %3 pixels, at most %4 megapixels are drawn</source>
        <translation>%1 kann nicht geschrieben werden: Das Panel braucht %2 x %3 Pixel, gezeichnet werden höchstens %4 Megapixel</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>no problems found</source>
        <translation>keine Probleme gefunden</translation>
    </message>
    <message>
        <source>There is no display to show a window on. Use --render to draw the panel to PNG files, or --check to look for problems only.</source>
        <translation>Es gibt keine Anzeige für ein Fenster. Mit --render wird das Panel in PNG-Dateien gezeichnet, mit --check nur nach Problemen gesucht.</translation>
    </message>
    <message>
        <source>Try property-panel --help.</source>
        <translation>Versuchen Sie property-panel --help.</translation>
    </message>
    <message>
        <source>is not an INI file: each line must be a [group], name=value or a ; comment</source>
        <translation>ist keine INI-Datei: Jede Zeile muss eine [Gruppe], Name=Wert oder ein ; Kommentar sein</translation>
    </message>
    <message>
        <source>a copy cannot be made in %1</source>
        <translation>in %1 kann keine Kopie angelegt werden</translation>
    </message>
    <message>
        <source>Cannot write to standard output: %1</source>
        <translation>Auf die Standardausgabe kann nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>
Exit status:
  0  the values were saved, or what else was asked for was done
  1  the user cancelled, or nobody reads the changes of --live any more and there
     is neither --output nor --settings; no values were written
  2  wrong options, an error in the list or the values, no display to show a
     window on, or pictures that could not be written</source>
        <translation>
Rückgabewert:
  0  die Werte wurden gespeichert, oder es geschah, was sonst verlangt war
  1  der Benutzer hat abgebrochen, oder niemand liest mehr die Änderungen von --live,
     und es gibt weder --output noch --settings; es wurden keine Werte geschrieben
  2  falsche Optionen, ein Fehler in der Liste oder den Werten, keine Anzeige für ein
     Fenster, oder Bilder, die nicht geschrieben werden konnten</translation>
    </message>
    <message>
        <source>LTR</source>
        <comment>RTL in languages that are read from right to left</comment>
        <translation>LTR</translation>
    </message>
    <message>
        <source>Look: system (the default), light, dark or high-contrast.</source>
        <translation>Aussehen: system (Standard), light, dark oder high-contrast.</translation>
    </message>
    <message>
        <source>There is no theme &quot;%1&quot;; choose system, light, dark or high-contrast.</source>
        <translation>Es gibt kein Thema „%1“; wählen Sie system, light, dark oder high-contrast.</translation>
    </message>
    <message>
        <source>property-panel: error: %1</source>
        <translation>property-panel: Fehler: %1</translation>
    </message>
    <message>
        <source>property-panel: warning: %1</source>
        <translation>property-panel: Warnung: %1</translation>
    </message>
</context>
</TS>
