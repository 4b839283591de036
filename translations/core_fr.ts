<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>Tessark::UI::ColorControl</name>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>Alpha</translation>
    </message>
</context>
<context>
    <name>Tessark::UI::ColorWheel</name>
    <message>
        <source>Hue</source>
        <translation>Teinte</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>Hue %1 degrees, saturation %2 percent, brightness %3 percent</source>
        <translation>Teinte %1 degrés, saturation %2 pour cent, luminosité %3 pour cent</translation>
    </message>
    <message>
        <source>Color wheel</source>
        <translation>Roue chromatique</translation>
    </message>
</context>
<context>
    <name>Tessark::UI::DisclosureButton</name>
    <message>
        <source>Expand</source>
        <translation>Développer</translation>
    </message>
</context>
<context>
    <name>Tessark::UI::FilenameField</name>
    <message>
        <source>Browse</source>
        <translation>Parcourir</translation>
    </message>
</context>
</TS>
