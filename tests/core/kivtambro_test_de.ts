<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>TAMBRO_Global</name>
    <message>
        <source>TXT_RID_AIA_MY_FILES</source>
        <comment>My Files</comment>
        <translation>Eigene Dateien</translation>
    </message>
</context>
</TS>
