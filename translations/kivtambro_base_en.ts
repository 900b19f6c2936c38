<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>TAMBRO_Global</name>
    <message>
        <source>TXT_RID_AIA_MY_FILES</source>
        <comment>My Files</comment>
        <translation>My Files</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MEMORY_CARD</source>
        <comment>Memory Card</comment>
        <translation>Memory Card</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MEGASIM</source>
        <comment>MegaSIM</comment>
        <translation>MegaSIM</translation>
    </message>
</context>
</TS>
