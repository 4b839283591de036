<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
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
