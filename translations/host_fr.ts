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
