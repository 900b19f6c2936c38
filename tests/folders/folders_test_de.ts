<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>QObject</name>
    <message>
        <source>Alpha Folder</source>
        <comment>folder name</comment>
        <translation>Alpha-Ordner</translation>
    </message>
    <message>
        <source>Tones</source>
        <comment>folder name</comment>
        <translation>Töne</translation>
    </message>
    <message>
        <source>Beep</source>
        <translation>Piep</translation>
    </message>
    <message>
        <source>Ring</source>
        <translation>Ringé</translation>
    </message>
</context>
</TS>
