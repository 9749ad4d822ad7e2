<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>veldra::CCMDialog</name>
    <message numerus="yes">
        <source>%1 of %n unit(s)</source>
        <translation>
            <numerusform>%1 of %n unit</numerusform>
            <numerusform>%1 of %n units</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n unit(s)</source>
        <translation>
            <numerusform>%n unit</numerusform>
            <numerusform>%n units</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %n selected</source>
        <translation>
            <numerusform>%1, %n selected</numerusform>
            <numerusform>%1, %n selected</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>veldra::FailureStrip</name>
    <message numerus="yes">
        <source>%1 did not succeed for %n unit(s).</source>
        <translation>
            <numerusform>%1 did not succeed for %n unit.</numerusform>
            <numerusform>%1 did not succeed for %n units.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>veldra::ItemWindow</name>
    <message numerus="yes">
        <source>%1 of %n row(s)</source>
        <translation>
            <numerusform>%1 of %n entry</numerusform>
            <numerusform>%1 of %n entries</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n row(s)</source>
        <translation>
            <numerusform>%n entry</numerusform>
            <numerusform>%n entries</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %n selected</source>
        <translation>
            <numerusform>%1, %n selected</numerusform>
            <numerusform>%1, %n selected</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>veldra::OptionDialog</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 and %n more</numerusform>
            <numerusform>%1 and %n more</numerusform>
        </translation>
    </message>
</context>
</TS>
