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
    <message>
        <source>TXT_RID_LIST_A_MEMORY_CARD</source>
        <comment>Memory Card</comment>
        <translation>Speicherkarte</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MEGASIM</source>
        <comment>MegaSIM</comment>
        <translation>MegaSIM</translation>
    </message>
    <!-- Sizes: resource id, English text as comment. -->
    <message>
        <source>FMT_RID_AIA_1_FILES_SELECTED_TOTAL_2_B</source>
        <comment>%1 files selected - Total %2 B</comment>
        <translation>%1 Dateien ausgewählt - Gesamt %2 B</translation>
    </message>
    <message>
        <source>FMT_RID_AIA_1_FILES_SELECTED_TOTAL_2_KB</source>
        <comment>%1 files selected - Total %2 KB</comment>
        <translation>%1 Dateien ausgewählt - Gesamt %2 KB</translation>
    </message>
    <message>
        <source>FMT_RID_AIA_1_FILES_SELECTED_TOTAL_2_MB</source>
        <comment>%1 files selected - Total %2 MB</comment>
        <translation>%1 Dateien ausgewählt - Gesamt %2 MB</translation>
    </message>
    <message>
        <source>FMT_RID_LIST_B_1_B</source>
        <comment>%1 B</comment>
        <translation>%1 B</translation>
    </message>
    <message>
        <source>FMT_RID_LIST_B_1_KB</source>
        <comment>%1 KB</comment>
        <translation>%1 KB</translation>
    </message>
    <message>
        <source>FMT_RID_LIST_B_1_MB</source>
        <comment>%1 MB</comment>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>FMT_RID_STANDARD_1_B</source>
        <comment>%1 B</comment>
        <translation>%1 B</translation>
    </message>
    <message>
        <source>FMT_RID_STANDARD_1_KB</source>
        <comment>%1 KB</comment>
        <translation>%1 KB</translation>
    </message>
    <message>
        <source>FMT_RID_STANDARD_1_MB</source>
        <comment>%1 MB</comment>
        <translation>%1 MB</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <!-- Display names of the fixed folders: "res_str" of the folder structure file, "dis_str" as comment. -->
    <message>
        <source>My Files</source>
        <comment>root folder</comment>
        <translation>Eigene Dateien</translation>
    </message>
    <message>
        <source>Pictures</source>
        <comment>folder name</comment>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Camera</source>
        <comment>folder name</comment>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Audio</source>
        <comment>folder name</comment>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Videos</source>
        <comment>folder name</comment>
        <translation>Videos</translation>
    </message>
    <message>
        <source>Voice Records</source>
        <comment>folder name</comment>
        <translation>Sprachaufnahmen</translation>
    </message>
    <message>
        <source>Ring Tones</source>
        <comment>folder name</comment>
        <translation>Klingeltöne</translation>
    </message>
    <message>
        <source>My Documents</source>
        <comment>folder name</comment>
        <translation>Eigene Dokumente</translation>
    </message>
    <message>
        <source>Games &amp; Apps</source>
        <comment>folder name</comment>
        <translation>Spiele &amp; Apps</translation>
    </message>
    <message>
        <source>Other Files</source>
        <comment>folder name</comment>
        <translation>Sonstige Dateien</translation>
    </message>
    <message>
        <source>Themes</source>
        <comment>folder name</comment>
        <translation>Designs</translation>
    </message>
    <message>
        <source>Letters</source>
        <comment>folder name</comment>
        <translation>Briefe</translation>
    </message>
    <message>
        <source>Preloaded</source>
        <comment>preload root</comment>
        <translation>Vorinstalliert</translation>
    </message>
    <message>
        <source>Preloaded Pictures</source>
        <comment>folder name</comment>
        <translation>Vorinstallierte Bilder</translation>
    </message>
    <message>
        <source>Preloaded Ring Tones</source>
        <comment>folder name</comment>
        <translation>Vorinstallierte Klingeltöne</translation>
    </message>
    <message>
        <source>Preloaded Videos</source>
        <comment>folder name</comment>
        <translation>Vorinstallierte Videos</translation>
    </message>
    <!-- Preloaded files, by their names without extension. -->
    <message>
        <source>frame</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>wallpaper</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>Alarm</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>Klassisch</translation>
    </message>
    <message>
        <source>Tick Tock</source>
        <translation>Tick Tack</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <!-- Notices of opening files: resource id, English text as comment. -->
    <message>
        <source>TXT_RID_HEADER_CANNOT_ACCESS</source>
        <comment>Cannot Access</comment>
        <translation>Zugriff nicht möglich</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_CANNOT_ACCESS_VIA_FILE_MANAGER_OPEN_CALENDAR</source>
        <comment>This file can not be accessed via File Manager, please open the Calendar application to view this file.</comment>
        <translation>Auf diese Datei kann über den Datei-Manager nicht zugegriffen werden. Bitte öffnen Sie sie im Kalender.</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_CANNOT_ACCESS_VIA_FILE_MANAGER_OPEN_CONTACTS</source>
        <comment>This file can not be accessed via File Manager, please open the Contacts application to view this file.</comment>
        <translation>Auf diese Datei kann über den Datei-Manager nicht zugegriffen werden. Bitte öffnen Sie sie in den Kontakten.</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_INSTALLATION_FAILED</source>
        <comment>Installation Failed</comment>
        <translation>Installation fehlgeschlagen</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_APPLICATION_CANNOT_BE_INSTALLED_BECAUSE_ONE_OR_MORE_OF_THE_REQUIRED_FILES_ARE_MISSING</source>
        <comment>This application cannot be installed because one or more of the required files are missing.</comment>
        <translation>Diese Anwendung kann nicht installiert werden, weil eine oder mehrere der nötigen Dateien fehlen.</translation>
    </message>
</context>
</TS>
