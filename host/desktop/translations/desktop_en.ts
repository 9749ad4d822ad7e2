<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>veldra::host::desktop::MainWindow</name>
    <message numerus="yes">
        <source>%n unit(s)</source>
        <translation>
            <numerusform>%n unit</numerusform>
            <numerusform>%n units</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n selected</source>
        <translation>
            <numerusform>%n selected</numerusform>
            <numerusform>%n selected</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: %n unit(s) done.</source>
        <translation>
            <numerusform>%1: %n unit done.</numerusform>
            <numerusform>%1: %n units done.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) of the project are gone from the disk. Fetch them from the archive, or open the project anew.</source>
        <translation>
            <numerusform>%n file of the project is gone from the disk. Fetch it from the archive, or open the project anew.</numerusform>
            <numerusform>%n files of the project are gone from the disk. Fetch them from the archive, or open the project anew.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>veldra::host::desktop::ProgressPopup</name>
    <message numerus="yes">
        <source>About %n second(s) left</source>
        <translation>
            <numerusform>About %n second left</numerusform>
            <numerusform>About %n seconds left</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n minute(s) left</source>
        <translation>
            <numerusform>About %n minute left</numerusform>
            <numerusform>About %n minutes left</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>veldra::host::desktop::ProviderNotice</name>
    <message numerus="yes">
        <source>%1 has not answered for %n second(s), in its function %2.</source>
        <translation>
            <numerusform>%1 has not answered for %n second, in its function %2.</numerusform>
            <numerusform>%1 has not answered for %n seconds, in its function %2.</numerusform>
        </translation>
    </message>
</context>
</TS>
