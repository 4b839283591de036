<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
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
