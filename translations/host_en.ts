<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>Tessark::PropertyHost::Messages</name>
    <message numerus="yes">
        <source>is too large: at most %1 MiB (%n bytes) are read</source>
        <translation>
            <numerusform>is too large: at most %1 MiB (%n byte) are read</numerusform>
            <numerusform>is too large: at most %1 MiB (%n bytes) are read</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>expected %1, found an array of %n</source>
        <translation>
            <numerusform>expected %1, found an array of %n</numerusform>
            <numerusform>expected %1, found an array of %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>expected %n numbers with single spaces between, found %1</source>
        <translation>
            <numerusform>expected %n number, found %1</numerusform>
            <numerusform>expected %n numbers with single spaces between, found %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>groups and tab groups may be nested %n deep at most</source>
        <translation>
            <numerusform>groups and tab groups may be nested %n deep at most</numerusform>
            <numerusform>groups and tab groups may be nested %n deep at most</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 is too large: it has %2 x %3 pixels, at most %n megapixels are read</source>
        <translation>
            <numerusform>%1 is too large: it has %2 x %3 pixels, at most %n megapixel is read</numerusform>
            <numerusform>%1 is too large: it has %2 x %3 pixels, at most %n megapixels are read</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more errors</source>
        <translation>
            <numerusform>%n more error</numerusform>
            <numerusform>%n more errors</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more warnings</source>
        <translation>
            <numerusform>%n more warning</numerusform>
            <numerusform>%n more warnings</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the operand is neither a number nor %n</source>
        <translation>
            <numerusform>the operand is neither a number nor %n</numerusform>
            <numerusform>the operand is neither a number nor %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n values for %1 &quot;display_values&quot;</source>
        <translation>
            <numerusform>%n value for %1 &quot;display_values&quot;</numerusform>
            <numerusform>%n values for %1 &quot;display_values&quot;</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 has no choice %2, the list has %n</source>
        <translation>
            <numerusform>%1 has no choice %2, the list has %n</numerusform>
            <numerusform>%1 has no choice %2, the list has %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>a rule may be nested %n deep at most</source>
        <translation>
            <numerusform>a rule may be nested %n deep at most</numerusform>
            <numerusform>a rule may be nested %n deep at most</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>a rule may have %n characters at most</source>
        <translation>
            <numerusform>a rule may have %n character at most</numerusform>
            <numerusform>a rule may have %n characters at most</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>expected %n numbers, found %1</source>
        <translation>
            <numerusform>expected %n number, found %1</numerusform>
            <numerusform>expected %n numbers, found %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>a rule may have %n conditions at most</source>
        <translation>
            <numerusform>a rule may have %n condition at most</numerusform>
            <numerusform>a rule may have %n conditions at most</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the texts of a list may have %n characters in all, the rest is left out</source>
        <translation>
            <numerusform>the texts of a list may have %n character in all, the rest is left out</numerusform>
            <numerusform>the texts of a list may have %n characters in all, the rest is left out</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the arrays and objects of a list may have %n entries in all, the rest is left out</source>
        <translation>
            <numerusform>the arrays and objects of a list may have %n entry in all, the rest is left out</numerusform>
            <numerusform>the arrays and objects of a list may have %n entries in all, the rest is left out</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the pictures of a list may have %n megapixels in all, the rest is left out</source>
        <translation>
            <numerusform>the pictures of a list may have %n megapixel in all, the rest is left out</numerusform>
            <numerusform>the pictures of a list may have %n megapixels in all, the rest is left out</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>a list may have %n rows at most, the rest is left out</source>
        <translation>
            <numerusform>a list may have %n row at most, the rest is left out</numerusform>
            <numerusform>a list may have %n rows at most, the rest is left out</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>a row may be %n pixels wide and high at most</source>
        <translation>
            <numerusform>a row may be %n pixel wide and high at most</numerusform>
            <numerusform>a row may be %n pixels wide and high at most</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>a text may have %n characters at most, this one has %1</source>
        <translation>
            <numerusform>a text may have %n character at most, this one has %1</numerusform>
            <numerusform>a text may have %n characters at most, this one has %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>there is no choice %1, the list has %n</source>
        <translation>
            <numerusform>there is no choice %1, the list has %n</numerusform>
            <numerusform>there is no choice %1, the list has %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyHost::NumberExpression</name>
    <message numerus="yes">
        <source>The expression is longer than %n characters</source>
        <translation>
            <numerusform>The expression is longer than %n character</numerusform>
            <numerusform>The expression is longer than %n characters</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The expression is nested more than %n levels deep</source>
        <translation>
            <numerusform>The expression is nested more than %n level deep</numerusform>
            <numerusform>The expression is nested more than %n levels deep</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyHost::SearchBar</name>
    <message numerus="yes">
        <source>%n matches</source>
        <translation>
            <numerusform>%n match</numerusform>
            <numerusform>%n matches</numerusform>
        </translation>
    </message>
</context>
</TS>
