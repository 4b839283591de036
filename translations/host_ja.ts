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
    <name>Tessark::PropertyHost::Messages</name>
    <message>
        <source>a row of type %1 does not show values of %2</source>
        <translation>型 %1 の行では %2 の値を表示できません</translation>
    </message>
    <message>
        <source>means nothing for type %1</source>
        <translation>型 %1 では意味がありません</translation>
    </message>
    <message>
        <source>%1 is not of the form &quot;0..10&quot; or &quot;0..10..100&quot;</source>
        <translation>%1 は &quot;0..10&quot; または &quot;0..10..100&quot; の形式ではありません</translation>
    </message>
    <message>
        <source>the bounds of %1 do not ascend</source>
        <translation>%1 の境界値が昇順ではありません</translation>
    </message>
    <message>
        <source>unknown hint%1</source>
        <translation>不明なヒントです%1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 has no key %2</source>
        <translation>%1 にキー %2 はありません</translation>
    </message>
    <message>
        <source>there is no property %1%2</source>
        <translation>プロパティ %1 はありません%2</translation>
    </message>
    <message>
        <source>%1 is not one of %2</source>
        <translation>%1 は次のいずれでもありません: %2</translation>
    </message>
    <message>
        <source>names of alignments</source>
        <translation>配置の名前</translation>
    </message>
    <message>
        <source>expected names of alignments, found an empty array</source>
        <translation>必要: 配置の名前、実際: 空の配列</translation>
    </message>
    <message>
        <source>an array</source>
        <translation>配列</translation>
    </message>
    <message>
        <source>%1 is not of the form &quot;Family&quot; or &quot;Family, 12&quot;</source>
        <translation>%1 は &quot;ファミリー&quot; または &quot;ファミリー, 12&quot; の形式ではありません</translation>
    </message>
    <message>
        <source>a font size must be at least 1 and below 1000</source>
        <translation>フォントサイズは 1 以上 1000 未満でなければなりません</translation>
    </message>
    <message>
        <source>unknown key%1</source>
        <translation>不明なキーです%1</translation>
    </message>
    <message>
        <source>a font as text or object</source>
        <translation>テキストまたはオブジェクトで表したフォント</translation>
    </message>
    <message>
        <source>a condition or an array of them</source>
        <translation>条件または条件の配列</translation>
    </message>
    <message>
        <source>expected conditions, found an empty array</source>
        <translation>必要: 条件、実際: 空の配列</translation>
    </message>
    <message>
        <source>%1 is not one of %2%3</source>
        <translation>%1 は次のいずれでもありません: %2%3</translation>
    </message>
    <message>
        <source>a compression rate must lie between 0 and %1</source>
        <translation>圧縮率は 0 から %1 の範囲でなければなりません</translation>
    </message>
    <message>
        <source>an object with &quot;format&quot;</source>
        <translation>&quot;format&quot; を持つオブジェクト</translation>
    </message>
    <message>
        <source>cannot be read: it is a directory</source>
        <translation>読み込めません: ディレクトリです</translation>
    </message>
    <message>
        <source>cannot be opened: %1</source>
        <translation>開けません: %1</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>読み込めません: %1</translation>
    </message>
    <message numerus="yes">
        <source>is too large: at most %1 MiB (%n bytes) are read</source>
        <translation>
            <numerusform>大きすぎます: 読み込めるのは最大 %1 MiB (%n バイト) です</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>expected %1, found an array of %n</source>
        <translation>
            <numerusform>必要: %1、実際: 要素が %n 個の配列</numerusform>
        </translation>
    </message>
    <message>
        <source>a colour component must lie between 0 and 1</source>
        <translation>色の成分は 0 から 1 の範囲でなければなりません</translation>
    </message>
    <message>
        <source>3 or 4 fractions</source>
        <translation>3 個または 4 個の小数</translation>
    </message>
    <message>
        <source>3 fractions</source>
        <translation>3 個の小数</translation>
    </message>
    <message>
        <source>%1 is not a colour</source>
        <translation>%1 は色ではありません</translation>
    </message>
    <message>
        <source>%1 is not an opaque colour</source>
        <translation>%1 は不透明な色ではありません</translation>
    </message>
    <message>
        <source>a boolean</source>
        <translation>真偽値</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>数値</translation>
    </message>
    <message>
        <source>a string</source>
        <translation>文字列</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>オブジェクト</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>expected %1, found %2</source>
        <translation>必要: %1、実際: %2</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>expected a whole number, found %1</source>
        <translation>必要: 整数、実際: %1</translation>
    </message>
    <message>
        <source>a whole number must lie between %1 and %2</source>
        <translation>整数は %1 から %2 の範囲でなければなりません</translation>
    </message>
    <message numerus="yes">
        <source>expected %n numbers with single spaces between, found %1</source>
        <translation>
            <numerusform>必要: 空白 1 つで区切った %n 個の数値、実際: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 in %2 is not a number</source>
        <translation>%2 の中の %1 は数値ではありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>&quot;%1&quot; がありません</translation>
    </message>
    <message>
        <source>a colour as text or array of fractions</source>
        <translation>テキストまたは小数の配列で表した色</translation>
    </message>
    <message>
        <source>a string, a number or a boolean</source>
        <translation>文字列、数値または真偽値</translation>
    </message>
    <message>
        <source>[width, height]</source>
        <translation>[幅, 高さ]</translation>
    </message>
    <message>
        <source>illegal value</source>
        <translation>不正な値です</translation>
    </message>
    <message>
        <source>the document is empty</source>
        <translation>ドキュメントが空です</translation>
    </message>
    <message>
        <source>invalid UTF-8: byte 0x%1</source>
        <translation>無効な UTF-8 です: バイト 0x%1</translation>
    </message>
    <message>
        <source>this group is never closed, %1 is missing</source>
        <translation>このグループは閉じられていません。%1 がありません</translation>
    </message>
    <message>
        <source>this tab group is never closed, %1 is missing</source>
        <translation>このタブグループは閉じられていません。%1 がありません</translation>
    </message>
    <message numerus="yes">
        <source>groups and tab groups may be nested %n deep at most</source>
        <translation>
            <numerusform>グループとタブグループの入れ子は最大 %n 段です</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing is open that %1 could close</source>
        <translation>%1 で閉じるものがありません</translation>
    </message>
    <message>
        <source>%1 here leaves %2 open</source>
        <translation>ここに %1 があると %2 が閉じられません</translation>
    </message>
    <message>
        <source>a tab outside of a tab group</source>
        <translation>タブがタブグループの外にあります</translation>
    </message>
    <message>
        <source>a tab inside of the group %1</source>
        <translation>タブがグループ %1 の中にあります</translation>
    </message>
    <message>
        <source>no row shows the property %1, of type %2</source>
        <translation>型 %2 のプロパティ %1 を表示する行がありません</translation>
    </message>
    <message>
        <source>class information %1 of %2: %3</source>
        <translation>%2 のクラス情報 %1: %3</translation>
    </message>
    <message>
        <source>there is no file %1</source>
        <translation>ファイル %1 はありません</translation>
    </message>
    <message>
        <source>%1 is not a file</source>
        <translation>%1 はファイルではありません</translation>
    </message>
    <message>
        <source>%1 cannot be read as a picture: %2</source>
        <translation>%1 を画像として読み込めません: %2</translation>
    </message>
    <message>
        <source>%1 does not tell the size of its picture</source>
        <translation>%1 には画像のサイズが示されていません</translation>
    </message>
    <message numerus="yes">
        <source>%1 is too large: it has %2 x %3 pixels, at most %n megapixels are read</source>
        <translation>
            <numerusform>%1 は大きすぎます: %2 x %3 ピクセルありますが、読み込めるのは最大 %n メガピクセルです</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2</source>
        <translation>%1 を開けません: %2</translation>
    </message>
    <message>
        <source>a path or null</source>
        <translation>パスまたは null</translation>
    </message>
    <message>
        <source>error: %1</source>
        <translation>エラー: %1</translation>
    </message>
    <message>
        <source>warning: %1</source>
        <translation>警告: %1</translation>
    </message>
    <message>
        <source>%1 and %2 are not listed</source>
        <translation>ほかに %1 と %2 がありますが、省略しました</translation>
    </message>
    <message numerus="yes">
        <source>%n more errors</source>
        <translation>
            <numerusform>エラー %n 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more warnings</source>
        <translation>
            <numerusform>警告 %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>expected version %1, found %2</source>
        <translation>必要: バージョン %1、実際: %2</translation>
    </message>
    <message>
        <source>the name %1 is taken by a texture before</source>
        <translation>名前 %1 は前のテクスチャで使われています</translation>
    </message>
    <message>
        <source>%1 is outside of the range</source>
        <translation>%1 は範囲外です</translation>
    </message>
    <message>
        <source>type &quot;%1&quot; has no arithmetic</source>
        <translation>型 &quot;%1&quot; では計算できません</translation>
    </message>
    <message>
        <source>the operand is not a number</source>
        <translation>オペランドが数値ではありません</translation>
    </message>
    <message numerus="yes">
        <source>the operand is neither a number nor %n</source>
        <translation>
            <numerusform>オペランドが 1 個の数値でも %n 個の数値でもありません</numerusform>
        </translation>
    </message>
    <message>
        <source>the operand is not a finite number</source>
        <translation>オペランドが有限の数値ではありません</translation>
    </message>
    <message>
        <source>division by zero</source>
        <translation>ゼロによる除算です</translation>
    </message>
    <message>
        <source>the value is not %1</source>
        <translation>値が正しくありません。必要: %1</translation>
    </message>
    <message>
        <source>the result is not %1</source>
        <translation>結果が正しくありません。必要: %1</translation>
    </message>
    <message>
        <source>the name is empty</source>
        <translation>名前が空です</translation>
    </message>
    <message>
        <source>the name %1 is taken by a row before</source>
        <translation>名前 %1 は前の行で使われています</translation>
    </message>
    <message>
        <source>no editor for type %1, the row is skipped%2</source>
        <translation>型 %1 のエディターがないため、この行は省略されます%2</translation>
    </message>
    <message>
        <source>no editor reads this hint for type %1</source>
        <translation>型 %1 では、このヒントを読み取るエディターがありません</translation>
    </message>
    <message numerus="yes">
        <source>%n values for %1 &quot;display_values&quot;</source>
        <translation>
            <numerusform>%1 個の &quot;display_values&quot; に対して値が %n 個あります</numerusform>
        </translation>
    </message>
    <message>
        <source>means nothing for type %1, ignored</source>
        <translation>型 %1 では意味がないため、無視されます</translation>
    </message>
    <message>
        <source>&quot;max&quot; is missing and counts as 0</source>
        <translation>&quot;max&quot; がないため、0 とみなされます</translation>
    </message>
    <message>
        <source>the bound is not %1</source>
        <translation>境界値が正しくありません。必要: %1</translation>
    </message>
    <message>
        <source>%1 is above &quot;%2&quot;, which is %3</source>
        <translation>%1 は &quot;%2&quot; の値 %3 を超えています</translation>
    </message>
    <message>
        <source>a property of type %1 has no value</source>
        <translation>型 %1 のプロパティに値はありません</translation>
    </message>
    <message>
        <source>the default is not %1</source>
        <translation>既定値が正しくありません。必要: %1</translation>
    </message>
    <message>
        <source>%1 is not a number</source>
        <translation>%1 は数値ではありません</translation>
    </message>
    <message>
        <source>the %1 that opens here never closes</source>
        <translation>ここで始まる %1 が閉じられていません</translation>
    </message>
    <message>
        <source>%1 is not expected%2</source>
        <translation>ここに %1 は指定できません%2</translation>
    </message>
    <message numerus="yes">
        <source>%1 has no choice %2, the list has %n</source>
        <translation>
            <numerusform>%1 に選択肢 %2 はありません。リストにあるのは %n 個です</numerusform>
        </translation>
    </message>
    <message>
        <source>this is not one of the values of %1</source>
        <translation>これは %1 の値ではありません</translation>
    </message>
    <message>
        <source>%1 is not one of the values of %2%3</source>
        <translation>%1 は %2 の値ではありません%3</translation>
    </message>
    <message>
        <source>a truth value</source>
        <translation>真偽値</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>a value of several parts</source>
        <translation>複数の部分からなる値</translation>
    </message>
    <message>
        <source>a value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>%1 has no component %2%3</source>
        <translation>%1 に成分 %2 はありません%3</translation>
    </message>
    <message>
        <source>%1 has no component %2, but %3</source>
        <translation>%1 に成分 %2 はありません。成分は %3 です</translation>
    </message>
    <message>
        <source>rules cannot read %1, which is of type %2</source>
        <translation>型 %2 の %1 はルールでは読み取れません</translation>
    </message>
    <message>
        <source>%1 has no components</source>
        <translation>%1 に成分はありません</translation>
    </message>
    <message>
        <source>%1 has several parts, name one as in %2</source>
        <translation>%1 は複数の部分からなります。%2 のように 1 つを指定してください</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>%1 がありません</translation>
    </message>
    <message>
        <source>the rule ends too early</source>
        <translation>ルールが途中で終わっています</translation>
    </message>
    <message>
        <source>%1 is not expected</source>
        <translation>ここに %1 は指定できません</translation>
    </message>
    <message numerus="yes">
        <source>a rule may be nested %n deep at most</source>
        <translation>
            <numerusform>ルールの入れ子は最大 %n 段です</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>a rule may have %n characters at most</source>
        <translation>
            <numerusform>ルールは最大 %n 文字です</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>expected %n numbers, found %1</source>
        <translation>
            <numerusform>必要: 数値 %n 個、実際: %1 個</numerusform>
        </translation>
    </message>
    <message>
        <source>these rules go in a circle: %1</source>
        <translation>これらのルールは循環しています: %1</translation>
    </message>
    <message>
        <source>these minima go in a circle: %1</source>
        <translation>これらの最小値は循環しています: %1</translation>
    </message>
    <message>
        <source>these maxima go in a circle: %1</source>
        <translation>これらの最大値は循環しています: %1</translation>
    </message>
    <message>
        <source>expected an expression as text</source>
        <translation>必要: テキストで表した式</translation>
    </message>
    <message>
        <source>expected a condition as text, or several</source>
        <translation>必要: テキストで表した 1 つ以上の条件</translation>
    </message>
    <message numerus="yes">
        <source>a rule may have %n conditions at most</source>
        <translation>
            <numerusform>1 つのルールに指定できる条件は最大 %n 個です</numerusform>
        </translation>
    </message>
    <message>
        <source>the rule belongs to the row that opens what %1 closes</source>
        <translation>ルールは %1 が閉じるものを開く行に指定します</translation>
    </message>
    <message>
        <source>rows of type %1 have no range</source>
        <translation>型 %1 の行に範囲はありません</translation>
    </message>
    <message>
        <source>character %1: %2</source>
        <translation>%1 文字目: %2</translation>
    </message>
    <message>
        <source>not a row that all selected objects have</source>
        <translation>選択したすべてのオブジェクトに共通の行ではありません</translation>
    </message>
    <message numerus="yes">
        <source>the texts of a list may have %n characters in all, the rest is left out</source>
        <translation>
            <numerusform>リスト全体のテキストは最大 %n 文字です。残りは省略されます</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the arrays and objects of a list may have %n entries in all, the rest is left out</source>
        <translation>
            <numerusform>リスト全体の配列とオブジェクトの要素は最大 %n 個です。残りは省略されます</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the pictures of a list may have %n megapixels in all, the rest is left out</source>
        <translation>
            <numerusform>リスト全体の画像は最大 %n メガピクセルです。残りは省略されます</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>a list may have %n rows at most, the rest is left out</source>
        <translation>
            <numerusform>リストは最大 %n 行です。残りは省略されます</numerusform>
        </translation>
    </message>
    <message>
        <source>only a trusted list may have style sheets, which can name files</source>
        <translation>スタイルシートはファイルを指定できるため、信頼されたリストでのみ使用できます</translation>
    </message>
    <message numerus="yes">
        <source>a row may be %n pixels wide and high at most</source>
        <translation>
            <numerusform>行の幅と高さは最大 %n ピクセルです</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>a text may have %n characters at most, this one has %1</source>
        <translation>
            <numerusform>テキストは最大 %n 文字ですが、%1 文字あります</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 lies outside of the folder of the list; only a trusted list may name it</source>
        <translation>%1 はリストのフォルダーの外にあります。信頼されたリストでのみ指定できます</translation>
    </message>
    <message>
        <source>%1 is of the format &quot;%2&quot;; only a trusted list may have pictures of it</source>
        <translation>%1 の形式は &quot;%2&quot; です。この形式の画像は信頼されたリストでのみ使用できます</translation>
    </message>
    <message>
        <source>markup is shown as it is written</source>
        <translation>マークアップは書かれたとおりに表示されます</translation>
    </message>
    <message>
        <source> (did you mean %1?)</source>
        <translation> (%1 のことですか?)</translation>
    </message>
    <message>
        <source>the %1 is empty</source>
        <translation>&quot;%1&quot; が空です</translation>
    </message>
    <message>
        <source>a path or an object with &quot;file&quot;</source>
        <translation>パスまたは &quot;file&quot; を持つオブジェクト</translation>
    </message>
    <message>
        <source>the path is empty</source>
        <translation>パスが空です</translation>
    </message>
    <message>
        <source>the name of a texture, a path or null</source>
        <translation>テクスチャの名前、パスまたは null</translation>
    </message>
    <message>
        <source>%1 is neither one of the &quot;textures&quot; nor a file%2</source>
        <translation>%1 は &quot;textures&quot; になく、ファイルでもありません%2</translation>
    </message>
    <message>
        <source>no value</source>
        <translation>値なし</translation>
    </message>
    <message>
        <source>one of the choices</source>
        <translation>選択肢のいずれか</translation>
    </message>
    <message>
        <source>a vector of 2</source>
        <translation>2 成分のベクトル</translation>
    </message>
    <message>
        <source>a vector of 3</source>
        <translation>3 成分のベクトル</translation>
    </message>
    <message>
        <source>a vector of 4</source>
        <translation>4 成分のベクトル</translation>
    </message>
    <message>
        <source>a colour</source>
        <translation>色</translation>
    </message>
    <message>
        <source>a point</source>
        <translation>点</translation>
    </message>
    <message>
        <source>a size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>a rectangle</source>
        <translation>矩形</translation>
    </message>
    <message>
        <source>a matrix</source>
        <translation>行列</translation>
    </message>
    <message>
        <source>a picture</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>an image format</source>
        <translation>画像形式</translation>
    </message>
    <message>
        <source>a texture</source>
        <translation>テクスチャ</translation>
    </message>
    <message>
        <source>[x, y]</source>
        <translation>[x, y]</translation>
    </message>
    <message>
        <source>[x, y, width, height]</source>
        <translation>[x, y, 幅, 高さ]</translation>
    </message>
    <message>
        <source>9 numbers</source>
        <translation>9 個の数値</translation>
    </message>
    <message>
        <source>2 numbers</source>
        <translation>2 個の数値</translation>
    </message>
    <message>
        <source>3 numbers</source>
        <translation>3 個の数値</translation>
    </message>
    <message>
        <source>4 numbers</source>
        <translation>4 個の数値</translation>
    </message>
    <message>
        <source>%1 is not one of the &quot;values&quot;</source>
        <translation>%1 は &quot;values&quot; にありません</translation>
    </message>
    <message numerus="yes">
        <source>there is no choice %1, the list has %n</source>
        <translation>
            <numerusform>選択肢 %1 はありません。リストにあるのは %n 個です</numerusform>
        </translation>
    </message>
    <message>
        <source>a vector component is too large for single precision</source>
        <translation>ベクトルの成分が単精度の範囲を超えています</translation>
    </message>
    <message>
        <source>the rectangle ends outside the range of whole numbers</source>
        <translation>矩形の端が整数の範囲を超えています</translation>
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
