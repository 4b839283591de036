<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>Tessark::PropertyPanel::PanelWindow</name>
    <message>
        <source>Reset All</source>
        <translation>Tout réinitialiser</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save the changed values?</source>
        <translation>Enregistrer les valeurs modifiées ?</translation>
    </message>
    <message>
        <source>Changes that are not saved are lost.</source>
        <translation>Les modifications non enregistrées seront perdues.</translation>
    </message>
    <message>
        <source>%1 was written by another program meanwhile</source>
        <translation>Entre-temps, %1 a été écrit par un autre programme</translation>
    </message>
    <message>
        <source>Replace what another program has written to %1?</source>
        <translation>Remplacer ce qu’un autre programme a écrit dans %1 ?</translation>
    </message>
    <message>
        <source>It was written while this window was open.</source>
        <translation>L’écriture a eu lieu pendant que cette fenêtre était ouverte.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyPanel::Texts</name>
    <message>
        <source>Shows a panel for a JSON list of properties and writes the values that the user gave them, as a JSON object of name to value.</source>
        <translation>Affiche un panneau pour une liste de propriétés en JSON et écrit les valeurs données par l’utilisateur sous forme d’objet JSON associant noms et valeurs.</translation>
    </message>
    <message>
        <source>The property list; - reads standard input. Without it a built-in list is shown.</source>
        <translation>La liste de propriétés ; - lit l’entrée standard. Sans elle, une liste intégrée est affichée.</translation>
    </message>
    <message>
        <source>Start from the values in &lt;FILE&gt; instead of the defaults.</source>
        <translation>Partir des valeurs de &lt;FILE&gt; au lieu des valeurs par défaut.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>FICHIER</translation>
    </message>
    <message>
        <source>Start from the values in the INI file &lt;FILE&gt;, if it exists, and save to it. Values of --values go before its own; its other keys stay.</source>
        <translation>Partir des valeurs du fichier INI &lt;FILE&gt;, s’il existe, et y enregistrer. Les valeurs de --values passent avant les siennes ; ses autres clés restent.</translation>
    </message>
    <message>
        <source>Save to &lt;FILE&gt;, whole or not at all, instead of to standard output.</source>
        <translation>Enregistrer dans &lt;FILE&gt;, en entier ou pas du tout, au lieu de la sortie standard.</translation>
    </message>
    <message>
        <source>Print each change at once as one line of JSON: &quot;name&quot;, &quot;value&quot; and, in &quot;continued&quot;, whether it goes on with the change before it.</source>
        <translation>Afficher aussitôt chaque modification sur une ligne de JSON : &quot;name&quot;, &quot;value&quot; et, dans &quot;continued&quot;, si elle prolonge la précédente.</translation>
    </message>
    <message>
        <source>When --live prints a change: live (the default), at once; rate:&lt;N&gt;, at most N times a second, N from 1 to 1000, and always the last; end, when the drag or the typing ends.</source>
        <translation>Quand --live affiche une modification : live (par défaut), aussitôt ; rate:&lt;N&gt;, au plus N fois par seconde, N de 1 à 1000, et toujours la dernière ; end, à la fin du glissement ou de la saisie.</translation>
    </message>
    <message>
        <source>WHEN</source>
        <translation>QUAND</translation>
    </message>
    <message>
        <source>List all that is wrong with the list and the values; show nothing.</source>
        <translation>Énumérer tout ce qui ne va pas dans la liste et les valeurs ; ne rien afficher.</translation>
    </message>
    <message>
        <source>Draw the whole panel to &lt;PNG&gt;, and each further tab page to a file named after it, and print their names; show nothing.</source>
        <translation>Dessiner tout le panneau dans &lt;PNG&gt;, chaque autre onglet dans un fichier à son nom, et afficher les noms des fichiers ; ne rien montrer.</translation>
    </message>
    <message>
        <source>PNG</source>
        <translation>PNG</translation>
    </message>
    <message>
        <source>Size of the window, or of the picture; a picture grows to hold the panel.</source>
        <translation>Taille de la fenêtre ou de l’image ; une image s’agrandit pour contenir le panneau.</translation>
    </message>
    <message>
        <source>WxH</source>
        <translation>LxH</translation>
    </message>
    <message>
        <source>THEME</source>
        <translation>THÈME</translation>
    </message>
    <message>
        <source>Let the list name pictures anywhere and have style sheets. Without it, its pictures must lie in its folder or below.</source>
        <translation>Permettre à la liste de désigner des images n’importe où et d’avoir des feuilles de style. Sinon, ses images doivent se trouver dans son dossier ou plus bas.</translation>
    </message>
    <message>
        <source>Print the version.</source>
        <translation>Afficher la version.</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>Afficher cette aide.</translation>
    </message>
    <message>
        <source>There can be one property list only; &quot;%1&quot; is one too many.</source>
        <translation>Il ne peut y avoir qu’une liste de propriétés ; « %1 » est de trop.</translation>
    </message>
    <message>
        <source>The name of the property list is empty.</source>
        <translation>Le nom de la liste de propriétés est vide.</translation>
    </message>
    <message>
        <source>--%1 needs the name of a file.</source>
        <translation>--%1 demande le nom d’un fichier.</translation>
    </message>
    <message>
        <source>--check and --render cannot be used together.</source>
        <translation>--check et --render ne peuvent pas être utilisés ensemble.</translation>
    </message>
    <message>
        <source>--settings and --output cannot name the same file.</source>
        <translation>--settings et --output ne peuvent pas désigner le même fichier.</translation>
    </message>
    <message>
        <source>--commit is of use only with --live.</source>
        <translation>--commit n’est utile qu’avec --live.</translation>
    </message>
    <message>
        <source>The list and the values cannot both come from standard input.</source>
        <translation>La liste et les valeurs ne peuvent pas venir toutes deux de l’entrée standard.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a size; write width x height, such as 640x480, each from 1 to %2.</source>
        <translation>« %1 » n’est pas une taille ; écrivez largeur x hauteur, par exemple 640x480, chacune de 1 à %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no time for --commit; choose live, end, or rate:N with N from 1 to 1000.</source>
        <translation>« %1 » n’est pas un moment pour --commit ; choisissez live, end ou rate:N avec N de 1 à 1000.</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>ce n’est pas un fichier</translation>
    </message>
    <message>
        <source>it is write-protected</source>
        <translation>il est protégé en écriture</translation>
    </message>
    <message>
        <source>built-in list</source>
        <translation>liste intégrée</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>entrée standard</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propriétés</translation>
    </message>
    <message>
        <source>Cannot write %1: the panel takes %2 x %3 pixels, at most %4 megapixels are drawn</source>
        <translation>Impossible d’écrire %1 : le panneau occupe %2 x %3 pixels, %4 mégapixels au plus sont dessinés</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>Impossible d’écrire %1 : %2</translation>
    </message>
    <message>
        <source>no problems found</source>
        <translation>aucun problème trouvé</translation>
    </message>
    <message>
        <source>There is no display to show a window on. Use --render to draw the panel to PNG files, or --check to look for problems only.</source>
        <translation>Il n’y a pas d’écran où afficher une fenêtre. Utilisez --render pour dessiner le panneau dans des fichiers PNG, ou --check pour seulement chercher les problèmes.</translation>
    </message>
    <message>
        <source>Try property-panel --help.</source>
        <translation>Essayez property-panel --help.</translation>
    </message>
    <message>
        <source>is not an INI file: each line must be a [group], name=value or a ; comment</source>
        <translation>n’est pas un fichier INI : chaque ligne doit être un [groupe], nom=valeur ou un ; commentaire</translation>
    </message>
    <message>
        <source>a copy cannot be made in %1</source>
        <translation>impossible de faire une copie dans %1</translation>
    </message>
    <message>
        <source>Cannot write to standard output: %1</source>
        <translation>Impossible d’écrire sur la sortie standard : %1</translation>
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
Code de sortie :
  0  les valeurs ont été enregistrées, ou ce qui était demandé d’autre a été fait
  1  l’utilisateur a annulé, ou plus personne ne lit les modifications de --live et il
     n’y a ni --output ni --settings ; aucune valeur n’a été écrite
  2  options incorrectes, erreur dans la liste ou les valeurs, pas d’écran où afficher
     une fenêtre, ou images qui n’ont pas pu être écrites</translation>
    </message>
    <message>
        <source>LTR</source>
        <comment>RTL in languages that are read from right to left</comment>
        <translation>LTR</translation>
    </message>
    <message>
        <source>Look: system (the default), light, dark or high-contrast.</source>
        <translation>Apparence : system (par défaut), light, dark ou high-contrast.</translation>
    </message>
    <message>
        <source>There is no theme &quot;%1&quot;; choose system, light, dark or high-contrast.</source>
        <translation>Il n’y a pas de thème « %1 » ; choisissez system, light, dark ou high-contrast.</translation>
    </message>
    <message>
        <source>property-panel: error: %1</source>
        <translation>property-panel : erreur : %1</translation>
    </message>
    <message>
        <source>property-panel: warning: %1</source>
        <translation>property-panel : avertissement : %1</translation>
    </message>
</context>
</TS>
