<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>StatusBar</name>
    <message numerus="yes">
        <source>%n account(s)</source>
        <translation>
            <numerusform>%n account</numerusform>
            <numerusform>%n accounts</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>  •  %n recurring due</source>
        <translation>
            <numerusform>  •  %n recurring due</numerusform>
            <numerusform>  •  %n recurring due</numerusform>
        </translation>
    </message>
</context>
</TS>
