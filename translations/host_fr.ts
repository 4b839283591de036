<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>Tessark::PropertyHost::DefaultMark</name>
    <message>
        <source>Set to Default</source>
        <translation>Rétablir la valeur par défaut</translation>
    </message>
    <message>
        <source>Set %1 to Default</source>
        <translation>Rétablir la valeur par défaut de %1</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyHost::Messages</name>
    <message>
        <source>a row of type %1 does not show values of %2</source>
        <translation>une ligne de type %1 n’affiche pas de valeurs de %2</translation>
    </message>
    <message>
        <source>means nothing for type %1</source>
        <translation>n’a pas de sens pour le type %1</translation>
    </message>
    <message>
        <source>%1 is not of the form &quot;0..10&quot; or &quot;0..10..100&quot;</source>
        <translation>%1 n’est pas de la forme &quot;0..10&quot; ou &quot;0..10..100&quot;</translation>
    </message>
    <message>
        <source>the bounds of %1 do not ascend</source>
        <translation>les bornes de %1 ne sont pas croissantes</translation>
    </message>
    <message>
        <source>unknown hint%1</source>
        <translation>indication inconnue%1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>%1 has no key %2</source>
        <translation>%1 n’a pas de clé %2</translation>
    </message>
    <message>
        <source>there is no property %1%2</source>
        <translation>il n’y a pas de propriété %1%2</translation>
    </message>
    <message>
        <source>%1 is not one of %2</source>
        <translation>%1 n’est pas l’une de ces valeurs : %2</translation>
    </message>
    <message>
        <source>names of alignments</source>
        <translation>des noms d’alignements</translation>
    </message>
    <message>
        <source>expected names of alignments, found an empty array</source>
        <translation>attendu : des noms d’alignements, trouvé : un tableau vide</translation>
    </message>
    <message>
        <source>an array</source>
        <translation>un tableau</translation>
    </message>
    <message>
        <source>%1 is not of the form &quot;Family&quot; or &quot;Family, 12&quot;</source>
        <translation>%1 n’est pas de la forme &quot;Famille&quot; ou &quot;Famille, 12&quot;</translation>
    </message>
    <message>
        <source>a font size must be at least 1 and below 1000</source>
        <translation>une taille de police doit être d’au moins 1 et inférieure à 1000</translation>
    </message>
    <message>
        <source>unknown key%1</source>
        <translation>clé inconnue%1</translation>
    </message>
    <message>
        <source>a font as text or object</source>
        <translation>une police sous forme de texte ou d’objet</translation>
    </message>
    <message>
        <source>a condition or an array of them</source>
        <translation>une condition ou un tableau de conditions</translation>
    </message>
    <message>
        <source>expected conditions, found an empty array</source>
        <translation>attendu : des conditions, trouvé : un tableau vide</translation>
    </message>
    <message>
        <source>%1 is not one of %2%3</source>
        <translation>%1 n’est pas l’une de ces valeurs : %2%3</translation>
    </message>
    <message>
        <source>a compression rate must lie between 0 and %1</source>
        <translation>un taux de compression doit être compris entre 0 et %1</translation>
    </message>
    <message>
        <source>an object with &quot;format&quot;</source>
        <translation>un objet avec &quot;format&quot;</translation>
    </message>
    <message>
        <source>cannot be read: it is a directory</source>
        <translation>lecture impossible : c’est un répertoire</translation>
    </message>
    <message>
        <source>cannot be opened: %1</source>
        <translation>ouverture impossible : %1</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>lecture impossible : %1</translation>
    </message>
    <message numerus="yes">
        <source>is too large: at most %1 MiB (%n bytes) are read</source>
        <translation>
            <numerusform>trop grand : %1 Mio (%n octet) au plus sont lus</numerusform>
            <numerusform>trop grand : %1 Mio (%n octets) au plus sont lus</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>expected %1, found an array of %n</source>
        <translation>
            <numerusform>attendu : %1, trouvé : un tableau de %n élément</numerusform>
            <numerusform>attendu : %1, trouvé : un tableau de %n éléments</numerusform>
        </translation>
    </message>
    <message>
        <source>a colour component must lie between 0 and 1</source>
        <translation>une composante de couleur doit être comprise entre 0 et 1</translation>
    </message>
    <message>
        <source>3 or 4 fractions</source>
        <translation>3 ou 4 fractions</translation>
    </message>
    <message>
        <source>3 fractions</source>
        <translation>3 fractions</translation>
    </message>
    <message>
        <source>%1 is not a colour</source>
        <translation>%1 n’est pas une couleur</translation>
    </message>
    <message>
        <source>%1 is not an opaque colour</source>
        <translation>%1 n’est pas une couleur opaque</translation>
    </message>
    <message>
        <source>a boolean</source>
        <translation>un booléen</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>un nombre</translation>
    </message>
    <message>
        <source>a string</source>
        <translation>une chaîne</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>un objet</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>rien</translation>
    </message>
    <message>
        <source>expected %1, found %2</source>
        <translation>attendu : %1, trouvé : %2</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>un nombre entier</translation>
    </message>
    <message>
        <source>expected a whole number, found %1</source>
        <translation>attendu : un nombre entier, trouvé : %1</translation>
    </message>
    <message>
        <source>a whole number must lie between %1 and %2</source>
        <translation>un nombre entier doit être compris entre %1 et %2</translation>
    </message>
    <message numerus="yes">
        <source>expected %n numbers with single spaces between, found %1</source>
        <translation>
            <numerusform>attendu : %n nombre, trouvé : %1</numerusform>
            <numerusform>attendu : %n nombres séparés par une seule espace, trouvé : %1</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 in %2 is not a number</source>
        <translation>%1 dans %2 n’est pas un nombre</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>&quot;%1&quot; manque</translation>
    </message>
    <message>
        <source>a colour as text or array of fractions</source>
        <translation>une couleur sous forme de texte ou de tableau de fractions</translation>
    </message>
    <message>
        <source>a string, a number or a boolean</source>
        <translation>une chaîne, un nombre ou un booléen</translation>
    </message>
    <message>
        <source>[width, height]</source>
        <translation>[largeur, hauteur]</translation>
    </message>
    <message>
        <source>illegal value</source>
        <translation>valeur non admise</translation>
    </message>
    <message>
        <source>the document is empty</source>
        <translation>le document est vide</translation>
    </message>
    <message>
        <source>invalid UTF-8: byte 0x%1</source>
        <translation>UTF-8 non valide : octet 0x%1</translation>
    </message>
    <message>
        <source>this group is never closed, %1 is missing</source>
        <translation>ce groupe n’est jamais fermé, %1 manque</translation>
    </message>
    <message>
        <source>this tab group is never closed, %1 is missing</source>
        <translation>ce groupe d’onglets n’est jamais fermé, %1 manque</translation>
    </message>
    <message numerus="yes">
        <source>groups and tab groups may be nested %n deep at most</source>
        <translation>
            <numerusform>les groupes et les groupes d’onglets peuvent être imbriqués sur %n niveau au plus</numerusform>
            <numerusform>les groupes et les groupes d’onglets peuvent être imbriqués sur %n niveaux au plus</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing is open that %1 could close</source>
        <translation>rien n’est ouvert que %1 puisse fermer</translation>
    </message>
    <message>
        <source>%1 here leaves %2 open</source>
        <translation>ici, %1 laisse %2 ouvert</translation>
    </message>
    <message>
        <source>a tab outside of a tab group</source>
        <translation>un onglet hors d’un groupe d’onglets</translation>
    </message>
    <message>
        <source>a tab inside of the group %1</source>
        <translation>un onglet à l’intérieur du groupe %1</translation>
    </message>
    <message>
        <source>no row shows the property %1, of type %2</source>
        <translation>aucune ligne n’affiche la propriété %1, de type %2</translation>
    </message>
    <message>
        <source>class information %1 of %2: %3</source>
        <translation>information de classe %1 de %2 : %3</translation>
    </message>
    <message>
        <source>there is no file %1</source>
        <translation>il n’y a pas de fichier %1</translation>
    </message>
    <message>
        <source>%1 is not a file</source>
        <translation>%1 n’est pas un fichier</translation>
    </message>
    <message>
        <source>%1 cannot be read as a picture: %2</source>
        <translation>impossible de lire %1 comme image : %2</translation>
    </message>
    <message>
        <source>%1 does not tell the size of its picture</source>
        <translation>%1 n’indique pas la taille de son image</translation>
    </message>
    <message numerus="yes">
        <source>%1 is too large: it has %2 x %3 pixels, at most %n megapixels are read</source>
        <translation>
            <numerusform>%1 est trop grand : l’image compte %2 x %3 pixels, %n mégapixel au plus est lu</numerusform>
            <numerusform>%1 est trop grand : l’image compte %2 x %3 pixels, %n mégapixels au plus sont lus</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2</source>
        <translation>impossible d’ouvrir %1 : %2</translation>
    </message>
    <message>
        <source>a path or null</source>
        <translation>un chemin ou null</translation>
    </message>
    <message>
        <source>error: %1</source>
        <translation>erreur : %1</translation>
    </message>
    <message>
        <source>warning: %1</source>
        <translation>avertissement : %1</translation>
    </message>
    <message>
        <source>%1 and %2 are not listed</source>
        <translation>non énumérés : %1 et %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more errors</source>
        <translation>
            <numerusform>%n autre erreur</numerusform>
            <numerusform>%n autres erreurs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more warnings</source>
        <translation>
            <numerusform>%n autre avertissement</numerusform>
            <numerusform>%n autres avertissements</numerusform>
        </translation>
    </message>
    <message>
        <source>expected version %1, found %2</source>
        <translation>attendu : version %1, trouvé : %2</translation>
    </message>
    <message>
        <source>the name %1 is taken by a texture before</source>
        <translation>le nom %1 est déjà pris par une texture précédente</translation>
    </message>
    <message>
        <source>%1 is outside of the range</source>
        <translation>%1 est hors de la plage</translation>
    </message>
    <message>
        <source>type &quot;%1&quot; has no arithmetic</source>
        <translation>le type &quot;%1&quot; ne permet pas de calculs</translation>
    </message>
    <message>
        <source>the operand is not a number</source>
        <translation>l’opérande n’est pas un nombre</translation>
    </message>
    <message numerus="yes">
        <source>the operand is neither a number nor %n</source>
        <translation>
            <numerusform>l’opérande n’est pas une suite de %n nombre</numerusform>
            <numerusform>l’opérande n’est ni un nombre ni une suite de %n nombres</numerusform>
        </translation>
    </message>
    <message>
        <source>the operand is not a finite number</source>
        <translation>l’opérande n’est pas un nombre fini</translation>
    </message>
    <message>
        <source>division by zero</source>
        <translation>division par zéro</translation>
    </message>
    <message>
        <source>the value is not %1</source>
        <translation>la valeur ne convient pas, attendu : %1</translation>
    </message>
    <message>
        <source>the result is not %1</source>
        <translation>le résultat ne convient pas, attendu : %1</translation>
    </message>
    <message>
        <source>the name is empty</source>
        <translation>le nom est vide</translation>
    </message>
    <message>
        <source>the name %1 is taken by a row before</source>
        <translation>le nom %1 est déjà pris par une ligne précédente</translation>
    </message>
    <message>
        <source>no editor for type %1, the row is skipped%2</source>
        <translation>pas d’éditeur pour le type %1, la ligne est omise%2</translation>
    </message>
    <message>
        <source>no editor reads this hint for type %1</source>
        <translation>aucun éditeur ne lit cette indication pour le type %1</translation>
    </message>
    <message numerus="yes">
        <source>%n values for %1 &quot;display_values&quot;</source>
        <translation>
            <numerusform>%n valeur pour %1 &quot;display_values&quot;</numerusform>
            <numerusform>%n valeurs pour %1 &quot;display_values&quot;</numerusform>
        </translation>
    </message>
    <message>
        <source>means nothing for type %1, ignored</source>
        <translation>n’a pas de sens pour le type %1, ignoré</translation>
    </message>
    <message>
        <source>&quot;max&quot; is missing and counts as 0</source>
        <translation>&quot;max&quot; manque et compte pour 0</translation>
    </message>
    <message>
        <source>the bound is not %1</source>
        <translation>la borne ne convient pas, attendu : %1</translation>
    </message>
    <message>
        <source>%1 is above &quot;%2&quot;, which is %3</source>
        <translation>%1 dépasse &quot;%2&quot;, qui vaut %3</translation>
    </message>
    <message>
        <source>a property of type %1 has no value</source>
        <translation>une propriété de type %1 n’a pas de valeur</translation>
    </message>
    <message>
        <source>the default is not %1</source>
        <translation>la valeur par défaut ne convient pas, attendu : %1</translation>
    </message>
    <message>
        <source>%1 is not a number</source>
        <translation>%1 n’est pas un nombre</translation>
    </message>
    <message>
        <source>the %1 that opens here never closes</source>
        <translation>le %1 ouvert ici n’est jamais fermé</translation>
    </message>
    <message>
        <source>%1 is not expected%2</source>
        <translation>%1 n’est pas attendu ici%2</translation>
    </message>
    <message numerus="yes">
        <source>%1 has no choice %2, the list has %n</source>
        <translation>
            <numerusform>%1 n’a pas de choix %2, la liste en compte %n</numerusform>
            <numerusform>%1 n’a pas de choix %2, la liste en compte %n</numerusform>
        </translation>
    </message>
    <message>
        <source>this is not one of the values of %1</source>
        <translation>ceci n’est pas l’une des valeurs de %1</translation>
    </message>
    <message>
        <source>%1 is not one of the values of %2%3</source>
        <translation>%1 n’est pas l’une des valeurs de %2%3</translation>
    </message>
    <message>
        <source>a truth value</source>
        <translation>une valeur booléenne</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>un texte</translation>
    </message>
    <message>
        <source>a value of several parts</source>
        <translation>une valeur en plusieurs parties</translation>
    </message>
    <message>
        <source>a value</source>
        <translation>une valeur</translation>
    </message>
    <message>
        <source>%1 has no component %2%3</source>
        <translation>%1 n’a pas de composante %2%3</translation>
    </message>
    <message>
        <source>%1 has no component %2, but %3</source>
        <translation>%1 n’a pas de composante %2, mais %3</translation>
    </message>
    <message>
        <source>rules cannot read %1, which is of type %2</source>
        <translation>les règles ne peuvent pas lire %1, qui est de type %2</translation>
    </message>
    <message>
        <source>%1 has no components</source>
        <translation>%1 n’a pas de composantes</translation>
    </message>
    <message>
        <source>%1 has several parts, name one as in %2</source>
        <translation>%1 a plusieurs parties, nommez-en une comme dans %2</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>%1 manque</translation>
    </message>
    <message>
        <source>the rule ends too early</source>
        <translation>la règle se termine trop tôt</translation>
    </message>
    <message>
        <source>%1 is not expected</source>
        <translation>%1 n’est pas attendu ici</translation>
    </message>
    <message numerus="yes">
        <source>a rule may be nested %n deep at most</source>
        <translation>
            <numerusform>une règle peut être imbriquée sur %n niveau au plus</numerusform>
            <numerusform>une règle peut être imbriquée sur %n niveaux au plus</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>a rule may have %n characters at most</source>
        <translation>
            <numerusform>une règle peut compter %n caractère au plus</numerusform>
            <numerusform>une règle peut compter %n caractères au plus</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>expected %n numbers, found %1</source>
        <translation>
            <numerusform>attendu : %n nombre, trouvé : %1</numerusform>
            <numerusform>attendu : %n nombres, trouvé : %1</numerusform>
        </translation>
    </message>
    <message>
        <source>these rules go in a circle: %1</source>
        <translation>ces règles forment un cercle : %1</translation>
    </message>
    <message>
        <source>these minima go in a circle: %1</source>
        <translation>ces minimums forment un cercle : %1</translation>
    </message>
    <message>
        <source>these maxima go in a circle: %1</source>
        <translation>ces maximums forment un cercle : %1</translation>
    </message>
    <message>
        <source>expected an expression as text</source>
        <translation>attendu : une expression sous forme de texte</translation>
    </message>
    <message>
        <source>expected a condition as text, or several</source>
        <translation>attendu : une ou plusieurs conditions sous forme de texte</translation>
    </message>
    <message numerus="yes">
        <source>a rule may have %n conditions at most</source>
        <translation>
            <numerusform>une règle peut avoir %n condition au plus</numerusform>
            <numerusform>une règle peut avoir %n conditions au plus</numerusform>
        </translation>
    </message>
    <message>
        <source>the rule belongs to the row that opens what %1 closes</source>
        <translation>la règle se place sur la ligne qui ouvre ce que %1 ferme</translation>
    </message>
    <message>
        <source>rows of type %1 have no range</source>
        <translation>les lignes de type %1 n’ont pas de plage</translation>
    </message>
    <message>
        <source>character %1: %2</source>
        <translation>caractère %1 : %2</translation>
    </message>
    <message>
        <source>not a row that all selected objects have</source>
        <translation>cette ligne n’est pas commune à tous les objets sélectionnés</translation>
    </message>
    <message numerus="yes">
        <source>the texts of a list may have %n characters in all, the rest is left out</source>
        <translation>
            <numerusform>les textes d’une liste peuvent compter %n caractère en tout, le reste est omis</numerusform>
            <numerusform>les textes d’une liste peuvent compter %n caractères en tout, le reste est omis</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the arrays and objects of a list may have %n entries in all, the rest is left out</source>
        <translation>
            <numerusform>les tableaux et objets d’une liste peuvent compter %n entrée en tout, le reste est omis</numerusform>
            <numerusform>les tableaux et objets d’une liste peuvent compter %n entrées en tout, le reste est omis</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the pictures of a list may have %n megapixels in all, the rest is left out</source>
        <translation>
            <numerusform>les images d’une liste peuvent compter %n mégapixel en tout, le reste est omis</numerusform>
            <numerusform>les images d’une liste peuvent compter %n mégapixels en tout, le reste est omis</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>a list may have %n rows at most, the rest is left out</source>
        <translation>
            <numerusform>une liste peut avoir %n ligne au plus, le reste est omis</numerusform>
            <numerusform>une liste peut avoir %n lignes au plus, le reste est omis</numerusform>
        </translation>
    </message>
    <message>
        <source>only a trusted list may have style sheets, which can name files</source>
        <translation>seule une liste de confiance peut avoir des feuilles de style, car elles peuvent désigner des fichiers</translation>
    </message>
    <message numerus="yes">
        <source>a row may be %n pixels wide and high at most</source>
        <translation>
            <numerusform>une ligne peut avoir une largeur et une hauteur de %n pixel au plus</numerusform>
            <numerusform>une ligne peut avoir une largeur et une hauteur de %n pixels au plus</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>a text may have %n characters at most, this one has %1</source>
        <translation>
            <numerusform>un texte peut compter %n caractère au plus, celui-ci en compte %1</numerusform>
            <numerusform>un texte peut compter %n caractères au plus, celui-ci en compte %1</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 lies outside of the folder of the list; only a trusted list may name it</source>
        <translation>%1 se trouve hors du dossier de la liste ; seule une liste de confiance peut le désigner</translation>
    </message>
    <message>
        <source>%1 is of the format &quot;%2&quot;; only a trusted list may have pictures of it</source>
        <translation>%1 est au format &quot;%2&quot; ; seule une liste de confiance peut avoir des images de ce format</translation>
    </message>
    <message>
        <source>markup is shown as it is written</source>
        <translation>le balisage est affiché tel qu’il est écrit</translation>
    </message>
    <message>
        <source> (did you mean %1?)</source>
        <translation> (vouliez-vous dire %1 ?)</translation>
    </message>
    <message>
        <source>the %1 is empty</source>
        <translation>&quot;%1&quot; est vide</translation>
    </message>
    <message>
        <source>a path or an object with &quot;file&quot;</source>
        <translation>un chemin ou un objet avec &quot;file&quot;</translation>
    </message>
    <message>
        <source>the path is empty</source>
        <translation>le chemin est vide</translation>
    </message>
    <message>
        <source>the name of a texture, a path or null</source>
        <translation>le nom d’une texture, un chemin ou null</translation>
    </message>
    <message>
        <source>%1 is neither one of the &quot;textures&quot; nor a file%2</source>
        <translation>%1 ne figure pas dans &quot;textures&quot; et n’est pas non plus un fichier%2</translation>
    </message>
    <message>
        <source>no value</source>
        <translation>aucune valeur</translation>
    </message>
    <message>
        <source>one of the choices</source>
        <translation>l’un des choix</translation>
    </message>
    <message>
        <source>a vector of 2</source>
        <translation>un vecteur de 2 nombres</translation>
    </message>
    <message>
        <source>a vector of 3</source>
        <translation>un vecteur de 3 nombres</translation>
    </message>
    <message>
        <source>a vector of 4</source>
        <translation>un vecteur de 4 nombres</translation>
    </message>
    <message>
        <source>a colour</source>
        <translation>une couleur</translation>
    </message>
    <message>
        <source>a point</source>
        <translation>un point</translation>
    </message>
    <message>
        <source>a size</source>
        <translation>une taille</translation>
    </message>
    <message>
        <source>a rectangle</source>
        <translation>un rectangle</translation>
    </message>
    <message>
        <source>a matrix</source>
        <translation>une matrice</translation>
    </message>
    <message>
        <source>a picture</source>
        <translation>une image</translation>
    </message>
    <message>
        <source>an image format</source>
        <translation>un format d’image</translation>
    </message>
    <message>
        <source>a texture</source>
        <translation>une texture</translation>
    </message>
    <message>
        <source>[x, y]</source>
        <translation>[x, y]</translation>
    </message>
    <message>
        <source>[x, y, width, height]</source>
        <translation>[x, y, largeur, hauteur]</translation>
    </message>
    <message>
        <source>9 numbers</source>
        <translation>9 nombres</translation>
    </message>
    <message>
        <source>2 numbers</source>
        <translation>2 nombres</translation>
    </message>
    <message>
        <source>3 numbers</source>
        <translation>3 nombres</translation>
    </message>
    <message>
        <source>4 numbers</source>
        <translation>4 nombres</translation>
    </message>
    <message>
        <source>%1 is not one of the &quot;values&quot;</source>
        <translation>%1 ne figure pas dans &quot;values&quot;</translation>
    </message>
    <message numerus="yes">
        <source>there is no choice %1, the list has %n</source>
        <translation>
            <numerusform>il n’y a pas de choix %1, la liste en compte %n</numerusform>
            <numerusform>il n’y a pas de choix %1, la liste en compte %n</numerusform>
        </translation>
    </message>
    <message>
        <source>a vector component is too large for single precision</source>
        <translation>une composante du vecteur est trop grande pour la simple précision</translation>
    </message>
    <message>
        <source>the rectangle ends outside the range of whole numbers</source>
        <translation>le rectangle se termine hors de la plage des nombres entiers</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyHost::MixedPainter</name>
    <message>
        <source>Several values</source>
        <translation>Plusieurs valeurs</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyHost::MixedRows</name>
    <message>
        <source>The selected objects have different values.</source>
        <translation>Les objets sélectionnés ont des valeurs différentes.</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyHost::NumberExpression</name>
    <message numerus="yes">
        <source>The expression is longer than %n characters</source>
        <translation>
            <numerusform>L’expression compte plus de %n caractère</numerusform>
            <numerusform>L’expression compte plus de %n caractères</numerusform>
        </translation>
    </message>
    <message>
        <source>Division by zero</source>
        <translation>Division par zéro</translation>
    </message>
    <message>
        <source>%1 is not a number</source>
        <translation>%1 n’est pas un nombre</translation>
    </message>
    <message>
        <source>There is no number named %1</source>
        <translation>Aucun nombre ne s’appelle %1</translation>
    </message>
    <message>
        <source>There is no function named %1</source>
        <translation>Aucune fonction ne s’appelle %1</translation>
    </message>
    <message>
        <source>%1 takes two or more numbers, with &quot;;&quot; between them</source>
        <translation>%1 prend deux nombres ou plus, séparés par « ; »</translation>
    </message>
    <message>
        <source>%1 takes one number</source>
        <translation>%1 prend un seul nombre</translation>
    </message>
    <message numerus="yes">
        <source>The expression is nested more than %n levels deep</source>
        <translation>
            <numerusform>L’expression est imbriquée sur plus de %n niveau</numerusform>
            <numerusform>L’expression est imbriquée sur plus de %n niveaux</numerusform>
        </translation>
    </message>
    <message>
        <source>The result is no real number</source>
        <translation>Le résultat n’est pas un nombre réel</translation>
    </message>
    <message>
        <source>The result is too large</source>
        <translation>Le résultat est trop grand</translation>
    </message>
    <message>
        <source>Something is missing at the end</source>
        <translation>Il manque quelque chose à la fin</translation>
    </message>
    <message>
        <source>%1 is not expected here</source>
        <translation>%1 n’est pas attendu ici</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyHost::NumberField</name>
    <message>
        <source>= %1 (largest)</source>
        <translation>= %1 (maximum)</translation>
    </message>
    <message>
        <source>= %1 (smallest)</source>
        <translation>= %1 (minimum)</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyHost::OperandDialog</name>
    <message>
        <source>Add to Each</source>
        <translation>Ajouter à chacun</translation>
    </message>
    <message>
        <source>Multiply Each</source>
        <translation>Multiplier chacun</translation>
    </message>
    <message>
        <source>Add to %1 of each selected object:</source>
        <translation>Ajouter à %1 de chaque objet sélectionné :</translation>
    </message>
    <message>
        <source>Multiply %1 of each selected object by:</source>
        <translation>Multiplier %1 de chaque objet sélectionné par :</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyHost::RowMenu</name>
    <message>
        <source>Copy &amp;Name</source>
        <translation>Copier le &amp;nom</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>Set to &amp;Default</source>
        <translation>Rétablir la valeur par &amp;défaut</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Co&amp;ller</translation>
    </message>
    <message>
        <source>&amp;Add to Each...</source>
        <translation>A&amp;jouter à chacun...</translation>
    </message>
    <message>
        <source>&amp;Multiply Each...</source>
        <translation>&amp;Multiplier chacun...</translation>
    </message>
    <message>
        <source>Set to Default</source>
        <translation>Rétablir la valeur par défaut</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyHost::SearchBar</name>
    <message>
        <source>No matches</source>
        <translation>Aucun résultat</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>match, all matches</comment>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>1 match</source>
        <translation>1 résultat</translation>
    </message>
    <message numerus="yes">
        <source>%n matches</source>
        <translation>
            <numerusform>%n résultat</numerusform>
            <numerusform>%n résultats</numerusform>
        </translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Only changed</source>
        <translation>Modifiées seulement</translation>
    </message>
    <message>
        <source>Shows only rows whose value is not the default</source>
        <translation>Affiche seulement les lignes dont la valeur n’est pas celle par défaut</translation>
    </message>
    <message>
        <source>Close the search</source>
        <translation>Fermer la recherche</translation>
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
        <translation>Plusieurs valeurs</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyHost::SplitterHandle</name>
    <message>
        <source>Width of labels</source>
        <translation>Largeur des libellés</translation>
    </message>
</context>
</TS>
