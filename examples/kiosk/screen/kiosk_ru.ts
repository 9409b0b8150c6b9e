<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en">
<context>
    <name>CustomerScreen</name>
    <message>
        <source>Paid. Thank you!</source>
        <translation>Оплачено. Спасибо!</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Купюры</translation>
    </message>
    <message>
        <source>Coins</source>
        <translation>Монеты</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>Карта</translation>
    </message>
    <message>
        <source>What you have paid is recorded. Please call the staff.</source>
        <translation>Внесённая сумма записана. Позовите сотрудника.</translation>
    </message>
    <message>
        <source>Please use another kiosk.</source>
        <translation>Воспользуйтесь другим терминалом.</translation>
    </message>
    <message>
        <source>Paid: %1 of %2</source>
        <translation>Внесено: %1 из %2</translation>
    </message>
    <message>
        <source>Paid: %1</source>
        <translation>Внесено: %1</translation>
    </message>
    <message>
        <source>Left to pay: %1</source>
        <translation>Осталось внести: %1</translation>
    </message>
    <message>
        <source>Please call the staff.</source>
        <translation>Позовите сотрудника.</translation>
    </message>
</context>
<context>
    <name>DeviceCard</name>
    <message>
        <source>at least %1</source>
        <translation>не менее %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>от %1 до %2</translation>
    </message>
    <message>
        <source>Cassette</source>
        <translation>Кассета</translation>
    </message>
    <message>
        <source>Rejects</source>
        <translation>Отбраковано</translation>
    </message>
    <message>
        <source>Channel %1</source>
        <translation>Канал %1</translation>
    </message>
    <message>
        <source>Stuck: %1, since %2</source>
        <translation>Застряло: %1, с %2</translation>
    </message>
    <message>
        <source>On its way: %1, since %2</source>
        <translation>В пути: %1, с %2</translation>
    </message>
    <message>
        <source>device %1, thread %2</source>
        <translation>устройство %1, поток %2</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>выключено</translation>
    </message>
    <message>
        <source>Inserted %1, rejected %2, returned %3</source>
        <translation>Вставлено %1, отклонено %2, возвращено %3</translation>
    </message>
    <message>
        <source>Hopper %1: %2 coins of %3 %4, %5 rejected</source>
        <translation>Хоппер %1: монет %2 по %3 %4, отбраковано %5</translation>
    </message>
    <message>
        <source>Cassette %1: %2 notes of %3 %4, %5 rejected</source>
        <translation>Кассета %1: купюр %2 по %3 %4, отбраковано %5</translation>
    </message>
    <message>
        <source>Content by the log:</source>
        <translation>Содержимое по журналу:</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Payment</source>
        <translation>Оплата</translation>
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
    <message>
        <source>Motion is on</source>
        <translation>Анимация включена</translation>
    </message>
    <message>
        <source>Motion is off</source>
        <translation>Анимация выключена</translation>
    </message>
    <message>
        <source>The acceptor service is not on the bus.</source>
        <translation>Сервиса приёма денег нет на шине.</translation>
    </message>
    <message>
        <source>No state yet.</source>
        <translation>Состояния ещё нет.</translation>
    </message>
    <message>
        <source>State of %1, %2 s old.</source>
        <translation>Состояние от %1, возраст %2 с.</translation>
    </message>
</context>
</TS>
