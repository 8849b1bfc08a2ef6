<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name></name>
    <message>
        <source>Update</source>
        <translation>Actualiser</translation>
    </message>
    <message numerus="yes">
        <source>points count</source>
        <translation><numerusform>%n point</numerusform><numerusform>%n points</numerusform></translation>
    </message>
</context>
</TS>
