<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name></name>
    <message>
        <source>Update</source>
        <translation>Cargar de nuevo</translation>
    </message>
    <message>
        <source>Code: </source>
        <translation>Código </translation>
    </message>
    <message>
        <source>Share Magazine</source>
        <translation>Comparte tu revista</translation>
    </message>
</context>
</TS>
