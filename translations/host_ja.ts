<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>Tessark::PropertyHost::DefaultMark</name>
    <message>
        <source>Set to Default</source>
        <translation>既定値に戻す</translation>
    </message>
    <message>
        <source>Set %1 to Default</source>
        <translation>%1 を既定値に戻す</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyHost::MixedPainter</name>
    <message>
        <source>Several values</source>
        <translation>複数の値</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyHost::MixedRows</name>
    <message>
        <source>The selected objects have different values.</source>
        <translation>選択したオブジェクトの値は異なります。</translation>
    </message>
</context>
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
    <name>Tessark::PropertyHost::OperandDialog</name>
    <message>
        <source>Add to Each</source>
        <translation>それぞれに加算</translation>
    </message>
    <message>
        <source>Multiply Each</source>
        <translation>それぞれを乗算</translation>
    </message>
    <message>
        <source>Add to %1 of each selected object:</source>
        <translation>選択した各オブジェクトの %1 に加算する値:</translation>
    </message>
    <message>
        <source>Multiply %1 of each selected object by:</source>
        <translation>選択した各オブジェクトの %1 に掛ける値:</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyHost::RowMenu</name>
    <message>
        <source>Copy &amp;Name</source>
        <translation>名前をコピー(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Set to &amp;Default</source>
        <translation>既定値に戻す(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>貼り付け(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Add to Each...</source>
        <translation>それぞれに加算(&amp;A)...</translation>
    </message>
    <message>
        <source>&amp;Multiply Each...</source>
        <translation>それぞれを乗算(&amp;M)...</translation>
    </message>
    <message>
        <source>Set to Default</source>
        <translation>既定値に戻す</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>貼り付け</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyHost::SearchBar</name>
    <message>
        <source>No matches</source>
        <translation>一致なし</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>match, all matches</comment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>1 match</source>
        <translation>1 件一致</translation>
    </message>
    <message numerus="yes">
        <source>%n matches</source>
        <translation>
            <numerusform>%n 件一致</numerusform>
        </translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Only changed</source>
        <translation>変更済みのみ</translation>
    </message>
    <message>
        <source>Shows only rows whose value is not the default</source>
        <translation>既定値でない行だけを表示します</translation>
    </message>
    <message>
        <source>Close the search</source>
        <translation>検索を閉じる</translation>
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
