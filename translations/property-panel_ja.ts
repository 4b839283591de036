<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>Tessark::PropertyPanel::PanelWindow</name>
    <message>
        <source>Reset All</source>
        <translation>すべてリセット</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直し</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save the changed values?</source>
        <translation>変更した値を保存しますか?</translation>
    </message>
    <message>
        <source>Changes that are not saved are lost.</source>
        <translation>保存しない変更は失われます。</translation>
    </message>
    <message>
        <source>%1 was written by another program meanwhile</source>
        <translation>その間に %1 が別のプログラムによって書き込まれました</translation>
    </message>
    <message>
        <source>Replace what another program has written to %1?</source>
        <translation>別のプログラムが %1 に書き込んだ内容を置き換えますか?</translation>
    </message>
    <message>
        <source>It was written while this window was open.</source>
        <translation>このウィンドウを開いている間に書き込まれました。</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>置き換え</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyPanel::Texts</name>
    <message>
        <source>Shows a panel for a JSON list of properties and writes the values that the user gave them, as a JSON object of name to value.</source>
        <translation>JSON のプロパティリストのパネルを表示し、ユーザーが指定した値を名前と値の JSON オブジェクトとして書き出します。</translation>
    </message>
    <message>
        <source>The property list; - reads standard input. Without it a built-in list is shown.</source>
        <translation>プロパティリスト。- は標準入力から読み込みます。省略すると組み込みのリストを表示します。</translation>
    </message>
    <message>
        <source>Start from the values in &lt;FILE&gt; instead of the defaults.</source>
        <translation>既定値の代わりに &lt;FILE&gt; の値から始めます。</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>FILE</translation>
    </message>
    <message>
        <source>Start from the values in the INI file &lt;FILE&gt;, if it exists, and save to it. Values of --values go before its own; its other keys stay.</source>
        <translation>INI ファイル &lt;FILE&gt; があればその値から始め、そこに保存します。--values の値が優先され、ほかのキーはそのまま残ります。</translation>
    </message>
    <message>
        <source>Save to &lt;FILE&gt;, whole or not at all, instead of to standard output.</source>
        <translation>標準出力の代わりに &lt;FILE&gt; に保存します。保存は完全に行われるか、まったく行われないかのどちらかです。</translation>
    </message>
    <message>
        <source>Print each change at once as one line of JSON: &quot;name&quot;, &quot;value&quot; and, in &quot;continued&quot;, whether it goes on with the change before it.</source>
        <translation>変更のたびに 1 行の JSON を出力します。&quot;name&quot;、&quot;value&quot;、および直前の変更の続きかどうかを示す &quot;continued&quot; です。</translation>
    </message>
    <message>
        <source>When --live prints a change: live (the default), at once; rate:&lt;N&gt;, at most N times a second, N from 1 to 1000, and always the last; end, when the drag or the typing ends.</source>
        <translation>--live が変更を出力する時期。live (既定) はすぐに、rate:&lt;N&gt; は 1 秒に最大 N 回 (N は 1 から 1000) で最後の変更は必ず、end はドラッグまたは入力の終了時に出力します。</translation>
    </message>
    <message>
        <source>WHEN</source>
        <translation>WHEN</translation>
    </message>
    <message>
        <source>List all that is wrong with the list and the values; show nothing.</source>
        <translation>リストと値の誤りをすべて列挙します。パネルは表示しません。</translation>
    </message>
    <message>
        <source>Draw the whole panel to &lt;PNG&gt;, and each further tab page to a file named after it, and print their names; show nothing.</source>
        <translation>パネル全体を &lt;PNG&gt; に、ほかのタブページをそれぞれその名前のファイルに描画し、ファイル名を出力します。パネルは表示しません。</translation>
    </message>
    <message>
        <source>PNG</source>
        <translation>PNG</translation>
    </message>
    <message>
        <source>Size of the window, or of the picture; a picture grows to hold the panel.</source>
        <translation>ウィンドウまたは画像のサイズ。画像はパネルが収まるまで大きくなります。</translation>
    </message>
    <message>
        <source>WxH</source>
        <translation>WxH</translation>
    </message>
    <message>
        <source>THEME</source>
        <translation>THEME</translation>
    </message>
    <message>
        <source>Let the list name pictures anywhere and have style sheets. Without it, its pictures must lie in its folder or below.</source>
        <translation>リストが任意の場所の画像を指定し、スタイルシートを持つことを許可します。指定しない場合、画像はリストのフォルダー以下になければなりません。</translation>
    </message>
    <message>
        <source>Print the version.</source>
        <translation>バージョンを出力します。</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>このヘルプを出力します。</translation>
    </message>
    <message>
        <source>There can be one property list only; &quot;%1&quot; is one too many.</source>
        <translation>指定できるプロパティリストは 1 つだけです。&quot;%1&quot; は余分です。</translation>
    </message>
    <message>
        <source>The name of the property list is empty.</source>
        <translation>プロパティリストの名前が空です。</translation>
    </message>
    <message>
        <source>--%1 needs the name of a file.</source>
        <translation>--%1 にはファイル名が必要です。</translation>
    </message>
    <message>
        <source>--check and --render cannot be used together.</source>
        <translation>--check と --render は同時に使用できません。</translation>
    </message>
    <message>
        <source>--settings and --output cannot name the same file.</source>
        <translation>--settings と --output に同じファイルは指定できません。</translation>
    </message>
    <message>
        <source>--commit is of use only with --live.</source>
        <translation>--commit は --live と一緒に使用した場合にのみ有効です。</translation>
    </message>
    <message>
        <source>The list and the values cannot both come from standard input.</source>
        <translation>リストと値の両方を標準入力から読み込むことはできません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a size; write width x height, such as 640x480, each from 1 to %2.</source>
        <translation>&quot;%1&quot; はサイズではありません。640x480 のように幅 x 高さを、それぞれ 1 から %2 で指定してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no time for --commit; choose live, end, or rate:N with N from 1 to 1000.</source>
        <translation>&quot;%1&quot; は --commit の時期ではありません。live、end、または N を 1 から 1000 とする rate:N を選んでください。</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>ファイルではありません</translation>
    </message>
    <message>
        <source>it is write-protected</source>
        <translation>書き込み禁止です</translation>
    </message>
    <message>
        <source>built-in list</source>
        <translation>組み込みのリスト</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>標準入力</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>プロパティ</translation>
    </message>
    <message>
        <source>Cannot write %1: the panel takes %2 x %3 pixels, at most %4 megapixels are drawn</source>
        <translation>%1 に書き込めません: パネルには %2 x %3 ピクセルが必要ですが、描画できるのは最大 %4 メガピクセルです</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>%1 に書き込めません: %2</translation>
    </message>
    <message>
        <source>no problems found</source>
        <translation>問題は見つかりませんでした</translation>
    </message>
    <message>
        <source>There is no display to show a window on. Use --render to draw the panel to PNG files, or --check to look for problems only.</source>
        <translation>ウィンドウを表示する画面がありません。--render でパネルを PNG ファイルに描画するか、--check で問題の確認だけを行ってください。</translation>
    </message>
    <message>
        <source>Try property-panel --help.</source>
        <translation>property-panel --help を実行してください。</translation>
    </message>
    <message>
        <source>is not an INI file: each line must be a [group], name=value or a ; comment</source>
        <translation>INI ファイルではありません: 各行は [グループ]、名前=値、または ; コメントでなければなりません</translation>
    </message>
    <message>
        <source>a copy cannot be made in %1</source>
        <translation>%1 にコピーを作成できません</translation>
    </message>
    <message>
        <source>Cannot write to standard output: %1</source>
        <translation>標準出力に書き込めません: %1</translation>
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
終了ステータス:
  0  値が保存されたか、そのほかの要求された処理が行われた
  1  ユーザーがキャンセルしたか、--live の変更を読む相手がいなくなり、
     --output も --settings も指定されていない。値は書き込まれていない
  2  オプションの誤り、リストまたは値の誤り、ウィンドウを表示する画面がない、
     または書き込めない画像がある</translation>
    </message>
    <message>
        <source>LTR</source>
        <comment>RTL in languages that are read from right to left</comment>
        <translation>LTR</translation>
    </message>
    <message>
        <source>Look: system (the default), light, dark or high-contrast.</source>
        <translation>外観: system (既定)、light、dark、high-contrast のいずれか。</translation>
    </message>
    <message>
        <source>There is no theme &quot;%1&quot;; choose system, light, dark or high-contrast.</source>
        <translation>&quot;%1&quot; というテーマはありません。system、light、dark、high-contrast のいずれかを選んでください。</translation>
    </message>
    <message>
        <source>property-panel: error: %1</source>
        <translation>property-panel: エラー: %1</translation>
    </message>
    <message>
        <source>property-panel: warning: %1</source>
        <translation>property-panel: 警告: %1</translation>
    </message>
</context>
</TS>
