<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>Tessark::PropertyHost::NumberExpression</name>
    <message numerus="yes">
        <source>The expression is longer than %n characters</source>
        <translation>
            <numerusform>式が %n 文字を超えています</numerusform>
        </translation>
    </message>
    <message>
        <source>Division by zero</source>
        <translation>ゼロによる除算です</translation>
    </message>
    <message>
        <source>%1 is not a number</source>
        <translation>%1 は数値ではありません</translation>
    </message>
    <message>
        <source>There is no number named %1</source>
        <translation>%1 という名前の数値はありません</translation>
    </message>
    <message>
        <source>There is no function named %1</source>
        <translation>%1 という名前の関数はありません</translation>
    </message>
    <message>
        <source>%1 takes two or more numbers, with &quot;;&quot; between them</source>
        <translation>%1 には &quot;;&quot; で区切った 2 つ以上の数値が必要です</translation>
    </message>
    <message>
        <source>%1 takes one number</source>
        <translation>%1 に指定できる数値は 1 つです</translation>
    </message>
    <message numerus="yes">
        <source>The expression is nested more than %n levels deep</source>
        <translation>
            <numerusform>式の入れ子が %n 段を超えています</numerusform>
        </translation>
    </message>
    <message>
        <source>The result is no real number</source>
        <translation>結果が実数になりません</translation>
    </message>
    <message>
        <source>The result is too large</source>
        <translation>結果が大きすぎます</translation>
    </message>
    <message>
        <source>Something is missing at the end</source>
        <translation>末尾に不足があります</translation>
    </message>
    <message>
        <source>%1 is not expected here</source>
        <translation>ここに %1 は指定できません</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyHost::NumberField</name>
    <message>
        <source>= %1 (largest)</source>
        <translation>= %1 (最大)</translation>
    </message>
    <message>
        <source>= %1 (smallest)</source>
        <translation>= %1 (最小)</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyHost::SelectionMarks</name>
    <message>
        <source>Several values</source>
        <translation>複数の値</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyHost::SplitterHandle</name>
    <message>
        <source>Width of labels</source>
        <translation>ラベルの幅</translation>
    </message>
</context>
</TS>
