<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>Tessark::UI::ColorControl</name>
    <message>
        <source>Red</source>
        <translation>赤</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>緑</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>青</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>アルファ</translation>
    </message>
</context>
<context>
    <name>Tessark::UI::ColorWheel</name>
    <message>
        <source>Hue</source>
        <translation>色相</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>彩度</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>明度</translation>
    </message>
    <message>
        <source>Hue %1 degrees, saturation %2 percent, brightness %3 percent</source>
        <translation>色相 %1 度、彩度 %2 パーセント、明度 %3 パーセント</translation>
    </message>
    <message>
        <source>Color wheel</source>
        <translation>カラーホイール</translation>
    </message>
</context>
<context>
    <name>Tessark::UI::DisclosureButton</name>
    <message>
        <source>Expand</source>
        <translation>展開</translation>
    </message>
</context>
<context>
    <name>Tessark::UI::FilenameField</name>
    <message>
        <source>Browse</source>
        <translation>参照</translation>
    </message>
</context>
</TS>
