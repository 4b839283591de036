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
    <name>Tessark::PropertyHost::Messages</name>
    <message>
        <source>a row of type %1 does not show values of %2</source>
        <translation>eine Zeile vom Typ %1 zeigt keine Werte von %2</translation>
    </message>
    <message>
        <source>means nothing for type %1</source>
        <translation>hat für den Typ %1 keine Bedeutung</translation>
    </message>
    <message>
        <source>%1 is not of the form &quot;0..10&quot; or &quot;0..10..100&quot;</source>
        <translation>%1 hat nicht die Form &quot;0..10&quot; oder &quot;0..10..100&quot;</translation>
    </message>
    <message>
        <source>the bounds of %1 do not ascend</source>
        <translation>die Grenzen von %1 steigen nicht an</translation>
    </message>
    <message>
        <source>unknown hint%1</source>
        <translation>unbekannter Hinweis%1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 has no key %2</source>
        <translation>%1 hat keinen Schlüssel %2</translation>
    </message>
    <message>
        <source>there is no property %1%2</source>
        <translation>es gibt keine Eigenschaft %1%2</translation>
    </message>
    <message>
        <source>%1 is not one of %2</source>
        <translation>%1 ist keiner dieser Werte: %2</translation>
    </message>
    <message>
        <source>names of alignments</source>
        <translation>Namen von Ausrichtungen</translation>
    </message>
    <message>
        <source>expected names of alignments, found an empty array</source>
        <translation>erwartet: Namen von Ausrichtungen, gefunden: ein leeres Array</translation>
    </message>
    <message>
        <source>an array</source>
        <translation>ein Array</translation>
    </message>
    <message>
        <source>%1 is not of the form &quot;Family&quot; or &quot;Family, 12&quot;</source>
        <translation>%1 hat nicht die Form &quot;Familie&quot; oder &quot;Familie, 12&quot;</translation>
    </message>
    <message>
        <source>a font size must be at least 1 and below 1000</source>
        <translation>eine Schriftgröße muss mindestens 1 und kleiner als 1000 sein</translation>
    </message>
    <message>
        <source>unknown key%1</source>
        <translation>unbekannter Schlüssel%1</translation>
    </message>
    <message>
        <source>a font as text or object</source>
        <translation>eine Schriftart als Text oder Objekt</translation>
    </message>
    <message>
        <source>a condition or an array of them</source>
        <translation>eine Bedingung oder ein Array von Bedingungen</translation>
    </message>
    <message>
        <source>expected conditions, found an empty array</source>
        <translation>erwartet: Bedingungen, gefunden: ein leeres Array</translation>
    </message>
    <message>
        <source>%1 is not one of %2%3</source>
        <translation>%1 ist keiner dieser Werte: %2%3</translation>
    </message>
    <message>
        <source>a compression rate must lie between 0 and %1</source>
        <translation>eine Kompressionsrate muss zwischen 0 und %1 liegen</translation>
    </message>
    <message>
        <source>an object with &quot;format&quot;</source>
        <translation>ein Objekt mit &quot;format&quot;</translation>
    </message>
    <message>
        <source>cannot be read: it is a directory</source>
        <translation>kann nicht gelesen werden: Es ist ein Verzeichnis</translation>
    </message>
    <message>
        <source>cannot be opened: %1</source>
        <translation>kann nicht geöffnet werden: %1</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>kann nicht gelesen werden: %1</translation>
    </message>
    <message numerus="yes">
        <source>is too large: at most %1 MiB (%n bytes) are read</source>
        <translation>
            <numerusform>ist zu groß: Gelesen werden höchstens %1 MiB (%n Byte)</numerusform>
            <numerusform>ist zu groß: Gelesen werden höchstens %1 MiB (%n Byte)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>expected %1, found an array of %n</source>
        <translation>
            <numerusform>erwartet: %1, gefunden: ein Array mit %n Element</numerusform>
            <numerusform>erwartet: %1, gefunden: ein Array mit %n Elementen</numerusform>
        </translation>
    </message>
    <message>
        <source>a colour component must lie between 0 and 1</source>
        <translation>eine Farbkomponente muss zwischen 0 und 1 liegen</translation>
    </message>
    <message>
        <source>3 or 4 fractions</source>
        <translation>3 oder 4 Anteile</translation>
    </message>
    <message>
        <source>3 fractions</source>
        <translation>3 Anteile</translation>
    </message>
    <message>
        <source>%1 is not a colour</source>
        <translation>%1 ist keine Farbe</translation>
    </message>
    <message>
        <source>%1 is not an opaque colour</source>
        <translation>%1 ist keine deckende Farbe</translation>
    </message>
    <message>
        <source>a boolean</source>
        <translation>ein boolescher Wert</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>eine Zahl</translation>
    </message>
    <message>
        <source>a string</source>
        <translation>eine Zeichenkette</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>ein Objekt</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>expected %1, found %2</source>
        <translation>erwartet: %1, gefunden: %2</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>eine ganze Zahl</translation>
    </message>
    <message>
        <source>expected a whole number, found %1</source>
        <translation>erwartet: eine ganze Zahl, gefunden: %1</translation>
    </message>
    <message>
        <source>a whole number must lie between %1 and %2</source>
        <translation>eine ganze Zahl muss zwischen %1 und %2 liegen</translation>
    </message>
    <message numerus="yes">
        <source>expected %n numbers with single spaces between, found %1</source>
        <translation>
            <numerusform>erwartet: %n Zahl, gefunden: %1</numerusform>
            <numerusform>erwartet: %n Zahlen mit je einem Leerzeichen dazwischen, gefunden: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 in %2 is not a number</source>
        <translation>%1 in %2 ist keine Zahl</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>&quot;%1&quot; fehlt</translation>
    </message>
    <message>
        <source>a colour as text or array of fractions</source>
        <translation>eine Farbe als Text oder als Array von Anteilen</translation>
    </message>
    <message>
        <source>a string, a number or a boolean</source>
        <translation>eine Zeichenkette, eine Zahl oder ein boolescher Wert</translation>
    </message>
    <message>
        <source>[width, height]</source>
        <translation>[Breite, Höhe]</translation>
    </message>
    <message>
        <source>illegal value</source>
        <translation>unzulässiger Wert</translation>
    </message>
    <message>
        <source>the document is empty</source>
        <translation>das Dokument ist leer</translation>
    </message>
    <message>
        <source>invalid UTF-8: byte 0x%1</source>
        <translation>ungültiges UTF-8: Byte 0x%1</translation>
    </message>
    <message>
        <source>this group is never closed, %1 is missing</source>
        <translation>diese Gruppe wird nie geschlossen, %1 fehlt</translation>
    </message>
    <message>
        <source>this tab group is never closed, %1 is missing</source>
        <translation>diese Registergruppe wird nie geschlossen, %1 fehlt</translation>
    </message>
    <message numerus="yes">
        <source>groups and tab groups may be nested %n deep at most</source>
        <translation>
            <numerusform>Gruppen und Registergruppen dürfen höchstens %n Ebene tief verschachtelt sein</numerusform>
            <numerusform>Gruppen und Registergruppen dürfen höchstens %n Ebenen tief verschachtelt sein</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing is open that %1 could close</source>
        <translation>nichts ist offen, das %1 schließen könnte</translation>
    </message>
    <message>
        <source>%1 here leaves %2 open</source>
        <translation>%1 lässt hier %2 offen</translation>
    </message>
    <message>
        <source>a tab outside of a tab group</source>
        <translation>eine Registerkarte außerhalb einer Registergruppe</translation>
    </message>
    <message>
        <source>a tab inside of the group %1</source>
        <translation>eine Registerkarte innerhalb der Gruppe %1</translation>
    </message>
    <message>
        <source>no row shows the property %1, of type %2</source>
        <translation>keine Zeile zeigt die Eigenschaft %1 vom Typ %2</translation>
    </message>
    <message>
        <source>class information %1 of %2: %3</source>
        <translation>Klasseninformation %1 von %2: %3</translation>
    </message>
    <message>
        <source>there is no file %1</source>
        <translation>es gibt keine Datei %1</translation>
    </message>
    <message>
        <source>%1 is not a file</source>
        <translation>%1 ist keine Datei</translation>
    </message>
    <message>
        <source>%1 cannot be read as a picture: %2</source>
        <translation>%1 kann nicht als Bild gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1 does not tell the size of its picture</source>
        <translation>%1 nennt die Größe des Bildes nicht</translation>
    </message>
    <message numerus="yes">
        <source>%1 is too large: it has %2 x %3 pixels, at most %n megapixels are read</source>
        <translation>
            <numerusform>%1 ist zu groß: Es sind %2 x %3 Pixel, gelesen werden höchstens %n Megapixel</numerusform>
            <numerusform>%1 ist zu groß: Es sind %2 x %3 Pixel, gelesen werden höchstens %n Megapixel</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2</source>
        <translation>%1 kann nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>a path or null</source>
        <translation>ein Pfad oder null</translation>
    </message>
    <message>
        <source>error: %1</source>
        <translation>Fehler: %1</translation>
    </message>
    <message>
        <source>warning: %1</source>
        <translation>Warnung: %1</translation>
    </message>
    <message>
        <source>%1 and %2 are not listed</source>
        <translation>nicht aufgeführt: %1 und %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more errors</source>
        <translation>
            <numerusform>%n weiterer Fehler</numerusform>
            <numerusform>%n weitere Fehler</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more warnings</source>
        <translation>
            <numerusform>%n weitere Warnung</numerusform>
            <numerusform>%n weitere Warnungen</numerusform>
        </translation>
    </message>
    <message>
        <source>expected version %1, found %2</source>
        <translation>erwartet: Version %1, gefunden: %2</translation>
    </message>
    <message>
        <source>the name %1 is taken by a texture before</source>
        <translation>den Namen %1 hat schon eine frühere Textur</translation>
    </message>
    <message>
        <source>%1 is outside of the range</source>
        <translation>%1 liegt außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>type &quot;%1&quot; has no arithmetic</source>
        <translation>mit dem Typ &quot;%1&quot; kann nicht gerechnet werden</translation>
    </message>
    <message>
        <source>the operand is not a number</source>
        <translation>der Operand ist keine Zahl</translation>
    </message>
    <message numerus="yes">
        <source>the operand is neither a number nor %n</source>
        <translation>
            <numerusform>der Operand besteht nicht aus %n Zahl</numerusform>
            <numerusform>der Operand besteht weder aus einer noch aus %n Zahlen</numerusform>
        </translation>
    </message>
    <message>
        <source>the operand is not a finite number</source>
        <translation>der Operand ist keine endliche Zahl</translation>
    </message>
    <message>
        <source>division by zero</source>
        <translation>Division durch null</translation>
    </message>
    <message>
        <source>the value is not %1</source>
        <translation>der Wert passt nicht, erwartet: %1</translation>
    </message>
    <message>
        <source>the result is not %1</source>
        <translation>das Ergebnis passt nicht, erwartet: %1</translation>
    </message>
    <message>
        <source>the name is empty</source>
        <translation>der Name ist leer</translation>
    </message>
    <message>
        <source>the name %1 is taken by a row before</source>
        <translation>den Namen %1 hat schon eine frühere Zeile</translation>
    </message>
    <message>
        <source>no editor for type %1, the row is skipped%2</source>
        <translation>kein Editor für den Typ %1, die Zeile wird ausgelassen%2</translation>
    </message>
    <message>
        <source>no editor reads this hint for type %1</source>
        <translation>für den Typ %1 liest kein Editor diesen Hinweis</translation>
    </message>
    <message numerus="yes">
        <source>%n values for %1 &quot;display_values&quot;</source>
        <translation>
            <numerusform>%n Wert für %1 &quot;display_values&quot;</numerusform>
            <numerusform>%n Werte für %1 &quot;display_values&quot;</numerusform>
        </translation>
    </message>
    <message>
        <source>means nothing for type %1, ignored</source>
        <translation>hat für den Typ %1 keine Bedeutung und wird ignoriert</translation>
    </message>
    <message>
        <source>&quot;max&quot; is missing and counts as 0</source>
        <translation>&quot;max&quot; fehlt und gilt als 0</translation>
    </message>
    <message>
        <source>the bound is not %1</source>
        <translation>die Grenze passt nicht, erwartet: %1</translation>
    </message>
    <message>
        <source>%1 is above &quot;%2&quot;, which is %3</source>
        <translation>%1 liegt über &quot;%2&quot;, und das ist %3</translation>
    </message>
    <message>
        <source>a property of type %1 has no value</source>
        <translation>eine Eigenschaft vom Typ %1 hat keinen Wert</translation>
    </message>
    <message>
        <source>the default is not %1</source>
        <translation>der Standardwert passt nicht, erwartet: %1</translation>
    </message>
    <message>
        <source>%1 is not a number</source>
        <translation>%1 ist keine Zahl</translation>
    </message>
    <message>
        <source>the %1 that opens here never closes</source>
        <translation>das %1, das hier öffnet, wird nie geschlossen</translation>
    </message>
    <message>
        <source>%1 is not expected%2</source>
        <translation>%1 wird hier nicht erwartet%2</translation>
    </message>
    <message numerus="yes">
        <source>%1 has no choice %2, the list has %n</source>
        <translation>
            <numerusform>%1 hat keinen Eintrag %2, die Liste hat %n</numerusform>
            <numerusform>%1 hat keinen Eintrag %2, die Liste hat %n</numerusform>
        </translation>
    </message>
    <message>
        <source>this is not one of the values of %1</source>
        <translation>dies ist keiner der Werte von %1</translation>
    </message>
    <message>
        <source>%1 is not one of the values of %2%3</source>
        <translation>%1 ist keiner der Werte von %2%3</translation>
    </message>
    <message>
        <source>a truth value</source>
        <translation>ein Wahrheitswert</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>ein Text</translation>
    </message>
    <message>
        <source>a value of several parts</source>
        <translation>ein Wert aus mehreren Teilen</translation>
    </message>
    <message>
        <source>a value</source>
        <translation>ein Wert</translation>
    </message>
    <message>
        <source>%1 has no component %2%3</source>
        <translation>%1 hat keine Komponente %2%3</translation>
    </message>
    <message>
        <source>%1 has no component %2, but %3</source>
        <translation>%1 hat keine Komponente %2, sondern %3</translation>
    </message>
    <message>
        <source>rules cannot read %1, which is of type %2</source>
        <translation>Regeln können %1 vom Typ %2 nicht lesen</translation>
    </message>
    <message>
        <source>%1 has no components</source>
        <translation>%1 hat keine Komponenten</translation>
    </message>
    <message>
        <source>%1 has several parts, name one as in %2</source>
        <translation>%1 hat mehrere Teile, nennen Sie einen wie in %2</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>%1 fehlt</translation>
    </message>
    <message>
        <source>the rule ends too early</source>
        <translation>die Regel endet zu früh</translation>
    </message>
    <message>
        <source>%1 is not expected</source>
        <translation>%1 wird hier nicht erwartet</translation>
    </message>
    <message numerus="yes">
        <source>a rule may be nested %n deep at most</source>
        <translation>
            <numerusform>eine Regel darf höchstens %n Ebene tief verschachtelt sein</numerusform>
            <numerusform>eine Regel darf höchstens %n Ebenen tief verschachtelt sein</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>a rule may have %n characters at most</source>
        <translation>
            <numerusform>eine Regel darf höchstens %n Zeichen haben</numerusform>
            <numerusform>eine Regel darf höchstens %n Zeichen haben</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>expected %n numbers, found %1</source>
        <translation>
            <numerusform>erwartet: %n Zahl, gefunden: %1</numerusform>
            <numerusform>erwartet: %n Zahlen, gefunden: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>these rules go in a circle: %1</source>
        <translation>diese Regeln bilden einen Kreis: %1</translation>
    </message>
    <message>
        <source>these minima go in a circle: %1</source>
        <translation>diese Minima bilden einen Kreis: %1</translation>
    </message>
    <message>
        <source>these maxima go in a circle: %1</source>
        <translation>diese Maxima bilden einen Kreis: %1</translation>
    </message>
    <message>
        <source>expected an expression as text</source>
        <translation>erwartet: ein Ausdruck als Text</translation>
    </message>
    <message>
        <source>expected a condition as text, or several</source>
        <translation>erwartet: eine oder mehrere Bedingungen als Text</translation>
    </message>
    <message numerus="yes">
        <source>a rule may have %n conditions at most</source>
        <translation>
            <numerusform>eine Regel darf höchstens %n Bedingung haben</numerusform>
            <numerusform>eine Regel darf höchstens %n Bedingungen haben</numerusform>
        </translation>
    </message>
    <message>
        <source>the rule belongs to the row that opens what %1 closes</source>
        <translation>die Regel gehört zu der Zeile, die öffnet, was %1 schließt</translation>
    </message>
    <message>
        <source>rows of type %1 have no range</source>
        <translation>Zeilen vom Typ %1 haben keinen Bereich</translation>
    </message>
    <message>
        <source>character %1: %2</source>
        <translation>Zeichen %1: %2</translation>
    </message>
    <message>
        <source>not a row that all selected objects have</source>
        <translation>keine Zeile, die alle ausgewählten Objekte haben</translation>
    </message>
    <message numerus="yes">
        <source>the texts of a list may have %n characters in all, the rest is left out</source>
        <translation>
            <numerusform>die Texte einer Liste dürfen zusammen höchstens %n Zeichen haben, der Rest entfällt</numerusform>
            <numerusform>die Texte einer Liste dürfen zusammen höchstens %n Zeichen haben, der Rest entfällt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the arrays and objects of a list may have %n entries in all, the rest is left out</source>
        <translation>
            <numerusform>die Arrays und Objekte einer Liste dürfen zusammen höchstens %n Eintrag haben, der Rest entfällt</numerusform>
            <numerusform>die Arrays und Objekte einer Liste dürfen zusammen höchstens %n Einträge haben, der Rest entfällt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the pictures of a list may have %n megapixels in all, the rest is left out</source>
        <translation>
            <numerusform>die Bilder einer Liste dürfen zusammen höchstens %n Megapixel haben, der Rest entfällt</numerusform>
            <numerusform>die Bilder einer Liste dürfen zusammen höchstens %n Megapixel haben, der Rest entfällt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>a list may have %n rows at most, the rest is left out</source>
        <translation>
            <numerusform>eine Liste darf höchstens %n Zeile haben, der Rest entfällt</numerusform>
            <numerusform>eine Liste darf höchstens %n Zeilen haben, der Rest entfällt</numerusform>
        </translation>
    </message>
    <message>
        <source>only a trusted list may have style sheets, which can name files</source>
        <translation>Stylesheets können Dateien nennen, daher darf nur eine vertrauenswürdige Liste welche haben</translation>
    </message>
    <message numerus="yes">
        <source>a row may be %n pixels wide and high at most</source>
        <translation>
            <numerusform>eine Zeile darf höchstens %n Pixel breit und hoch sein</numerusform>
            <numerusform>eine Zeile darf höchstens %n Pixel breit und hoch sein</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>a text may have %n characters at most, this one has %1</source>
        <translation>
            <numerusform>ein Text darf höchstens %n Zeichen haben, dieser hat %1</numerusform>
            <numerusform>ein Text darf höchstens %n Zeichen haben, dieser hat %1</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 lies outside of the folder of the list; only a trusted list may name it</source>
        <translation>%1 liegt außerhalb des Ordners der Liste; nur eine vertrauenswürdige Liste darf das nennen</translation>
    </message>
    <message>
        <source>%1 is of the format &quot;%2&quot;; only a trusted list may have pictures of it</source>
        <translation>%1 hat das Format &quot;%2&quot;; nur eine vertrauenswürdige Liste darf Bilder dieses Formats haben</translation>
    </message>
    <message>
        <source>markup is shown as it is written</source>
        <translation>Auszeichnungen werden so gezeigt, wie sie geschrieben sind</translation>
    </message>
    <message>
        <source> (did you mean %1?)</source>
        <translation> (meinten Sie %1?)</translation>
    </message>
    <message>
        <source>the %1 is empty</source>
        <translation>&quot;%1&quot; ist leer</translation>
    </message>
    <message>
        <source>a path or an object with &quot;file&quot;</source>
        <translation>ein Pfad oder ein Objekt mit &quot;file&quot;</translation>
    </message>
    <message>
        <source>the path is empty</source>
        <translation>der Pfad ist leer</translation>
    </message>
    <message>
        <source>the name of a texture, a path or null</source>
        <translation>der Name einer Textur, ein Pfad oder null</translation>
    </message>
    <message>
        <source>%1 is neither one of the &quot;textures&quot; nor a file%2</source>
        <translation>%1 steht nicht in &quot;textures&quot; und ist auch keine Datei%2</translation>
    </message>
    <message>
        <source>no value</source>
        <translation>kein Wert</translation>
    </message>
    <message>
        <source>one of the choices</source>
        <translation>einer der Einträge</translation>
    </message>
    <message>
        <source>a vector of 2</source>
        <translation>ein Vektor aus 2 Zahlen</translation>
    </message>
    <message>
        <source>a vector of 3</source>
        <translation>ein Vektor aus 3 Zahlen</translation>
    </message>
    <message>
        <source>a vector of 4</source>
        <translation>ein Vektor aus 4 Zahlen</translation>
    </message>
    <message>
        <source>a colour</source>
        <translation>eine Farbe</translation>
    </message>
    <message>
        <source>a point</source>
        <translation>ein Punkt</translation>
    </message>
    <message>
        <source>a size</source>
        <translation>eine Größe</translation>
    </message>
    <message>
        <source>a rectangle</source>
        <translation>ein Rechteck</translation>
    </message>
    <message>
        <source>a matrix</source>
        <translation>eine Matrix</translation>
    </message>
    <message>
        <source>a picture</source>
        <translation>ein Bild</translation>
    </message>
    <message>
        <source>an image format</source>
        <translation>ein Bildformat</translation>
    </message>
    <message>
        <source>a texture</source>
        <translation>eine Textur</translation>
    </message>
    <message>
        <source>[x, y]</source>
        <translation>[x, y]</translation>
    </message>
    <message>
        <source>[x, y, width, height]</source>
        <translation>[x, y, Breite, Höhe]</translation>
    </message>
    <message>
        <source>9 numbers</source>
        <translation>9 Zahlen</translation>
    </message>
    <message>
        <source>2 numbers</source>
        <translation>2 Zahlen</translation>
    </message>
    <message>
        <source>3 numbers</source>
        <translation>3 Zahlen</translation>
    </message>
    <message>
        <source>4 numbers</source>
        <translation>4 Zahlen</translation>
    </message>
    <message>
        <source>%1 is not one of the &quot;values&quot;</source>
        <translation>%1 steht nicht in &quot;values&quot;</translation>
    </message>
    <message numerus="yes">
        <source>there is no choice %1, the list has %n</source>
        <translation>
            <numerusform>es gibt keinen Eintrag %1, die Liste hat %n</numerusform>
            <numerusform>es gibt keinen Eintrag %1, die Liste hat %n</numerusform>
        </translation>
    </message>
    <message>
        <source>a vector component is too large for single precision</source>
        <translation>eine Vektorkomponente ist zu groß für einfache Genauigkeit</translation>
    </message>
    <message>
        <source>the rectangle ends outside the range of whole numbers</source>
        <translation>das Rechteck endet außerhalb des Bereichs ganzer Zahlen</translation>
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
