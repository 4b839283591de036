<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Tessark::PropertyHost::DefaultMark</name>
    <message>
        <source>Set to Default</source>
        <translation>Auf Standardwert setzen</translation>
    </message>
    <message>
        <source>Set %1 to Default</source>
        <translation>%1 auf Standardwert setzen</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyHost::MixedPainter</name>
    <message>
        <source>Several values</source>
        <translation>Mehrere Werte</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyHost::MixedRows</name>
    <message>
        <source>The selected objects have different values.</source>
        <translation>Die ausgewählten Objekte haben verschiedene Werte.</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyHost::NumberExpression</name>
    <message numerus="yes">
        <source>The expression is longer than %n characters</source>
        <translation>
            <numerusform>Der Ausdruck ist länger als %n Zeichen</numerusform>
            <numerusform>Der Ausdruck ist länger als %n Zeichen</numerusform>
        </translation>
    </message>
    <message>
        <source>Division by zero</source>
        <translation>Division durch null</translation>
    </message>
    <message>
        <source>%1 is not a number</source>
        <translation>%1 ist keine Zahl</translation>
    </message>
    <message>
        <source>There is no number named %1</source>
        <translation>Es gibt keine Zahl namens %1</translation>
    </message>
    <message>
        <source>There is no function named %1</source>
        <translation>Es gibt keine Funktion namens %1</translation>
    </message>
    <message>
        <source>%1 takes two or more numbers, with &quot;;&quot; between them</source>
        <translation>%1 braucht zwei oder mehr Zahlen, getrennt durch „;“</translation>
    </message>
    <message>
        <source>%1 takes one number</source>
        <translation>%1 braucht genau eine Zahl</translation>
    </message>
    <message numerus="yes">
        <source>The expression is nested more than %n levels deep</source>
        <translation>
            <numerusform>Der Ausdruck ist mehr als %n Ebene tief verschachtelt</numerusform>
            <numerusform>Der Ausdruck ist mehr als %n Ebenen tief verschachtelt</numerusform>
        </translation>
    </message>
    <message>
        <source>The result is no real number</source>
        <translation>Das Ergebnis ist keine reelle Zahl</translation>
    </message>
    <message>
        <source>The result is too large</source>
        <translation>Das Ergebnis ist zu groß</translation>
    </message>
    <message>
        <source>Something is missing at the end</source>
        <translation>Am Ende fehlt etwas</translation>
    </message>
    <message>
        <source>%1 is not expected here</source>
        <translation>%1 wird hier nicht erwartet</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyHost::NumberField</name>
    <message>
        <source>= %1 (largest)</source>
        <translation>= %1 (größter Wert)</translation>
    </message>
    <message>
        <source>= %1 (smallest)</source>
        <translation>= %1 (kleinster Wert)</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyHost::OperandDialog</name>
    <message>
        <source>Add to Each</source>
        <translation>Zu jedem addieren</translation>
    </message>
    <message>
        <source>Multiply Each</source>
        <translation>Jeden multiplizieren</translation>
    </message>
    <message>
        <source>Add to %1 of each selected object:</source>
        <translation>Zu %1 jedes ausgewählten Objekts addieren:</translation>
    </message>
    <message>
        <source>Multiply %1 of each selected object by:</source>
        <translation>%1 jedes ausgewählten Objekts multiplizieren mit:</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyHost::RowMenu</name>
    <message>
        <source>Copy &amp;Name</source>
        <translation>&amp;Namen kopieren</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Set to &amp;Default</source>
        <translation>Auf Stan&amp;dardwert setzen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>&amp;Add to Each...</source>
        <translation>Zu jedem &amp;addieren ...</translation>
    </message>
    <message>
        <source>&amp;Multiply Each...</source>
        <translation>Jeden &amp;multiplizieren ...</translation>
    </message>
    <message>
        <source>Set to Default</source>
        <translation>Auf Standardwert setzen</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyHost::SearchBar</name>
    <message>
        <source>No matches</source>
        <translation>Keine Treffer</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>match, all matches</comment>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>1 match</source>
        <translation>1 Treffer</translation>
    </message>
    <message numerus="yes">
        <source>%n matches</source>
        <translation>
            <numerusform>%n Treffer</numerusform>
            <numerusform>%n Treffer</numerusform>
        </translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Only changed</source>
        <translation>Nur geänderte</translation>
    </message>
    <message>
        <source>Shows only rows whose value is not the default</source>
        <translation>Zeigt nur Zeilen, deren Wert nicht der Standardwert ist</translation>
    </message>
    <message>
        <source>Close the search</source>
        <translation>Suche schließen</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyHost::SearchTabs</name>
    <message>
        <source>%1 (%2)</source>
        <comment>tab, matches on it</comment>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyHost::SelectionMarks</name>
    <message>
        <source>Several values</source>
        <translation>Mehrere Werte</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyHost::SplitterHandle</name>
    <message>
        <source>Width of labels</source>
        <translation>Breite der Beschriftungen</translation>
    </message>
</context>
</TS>
