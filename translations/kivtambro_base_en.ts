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
    <!-- Sizes: resource id, English text as comment. -->
    <message>
        <source>FMT_RID_AIA_1_FILES_SELECTED_TOTAL_2_B</source>
        <comment>%1 files selected - Total %2 B</comment>
        <translation>%1 files selected - Total %2 B</translation>
    </message>
    <message>
        <source>FMT_RID_AIA_1_FILES_SELECTED_TOTAL_2_KB</source>
        <comment>%1 files selected - Total %2 KB</comment>
        <translation>%1 files selected - Total %2 KB</translation>
    </message>
    <message>
        <source>FMT_RID_AIA_1_FILES_SELECTED_TOTAL_2_MB</source>
        <comment>%1 files selected - Total %2 MB</comment>
        <translation>%1 files selected - Total %2 MB</translation>
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
    <!-- Notices of opening files: resource id, English text as comment. -->
    <message>
        <source>TXT_RID_HEADER_CANNOT_ACCESS</source>
        <comment>Cannot Access</comment>
        <translation>Cannot Access</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_CANNOT_ACCESS_VIA_FILE_MANAGER_OPEN_CALENDAR</source>
        <comment>This file can not be accessed via File Manager, please open the Calendar application to view this file.</comment>
        <translation>This file can not be accessed via File Manager, please open the Calendar application to view this file.</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_CANNOT_ACCESS_VIA_FILE_MANAGER_OPEN_CONTACTS</source>
        <comment>This file can not be accessed via File Manager, please open the Contacts application to view this file.</comment>
        <translation>This file can not be accessed via File Manager, please open the Contacts application to view this file.</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_INSTALLATION_FAILED</source>
        <comment>Installation Failed</comment>
        <translation>Installation Failed</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_APPLICATION_CANNOT_BE_INSTALLED_BECAUSE_ONE_OR_MORE_OF_THE_REQUIRED_FILES_ARE_MISSING</source>
        <comment>This application cannot be installed because one or more of the required files are missing.</comment>
        <translation>This application cannot be installed because one or more of the required files are missing.</translation>
    </message>
</context>
</TS>
