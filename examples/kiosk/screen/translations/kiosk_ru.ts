<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en">
<context>
    <name>Main</name>
    <message>
        <source>Payment</source>
        <translation>Оплата</translation>
    </message>
    <message>
        <source>To set a PIN: write 4 to 12 digits into a file and start with --pin-file FILE.</source>
        <translation>Чтобы задать ПИН-код, запишите от 4 до 12 цифр в файл и запустите программу с --pin-file ФАЙЛ.</translation>
    </message>
</context>
<context>
    <name>ServiceScreen</name>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Устройства</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Отчёт</translation>
    </message>
</context>
</TS>
