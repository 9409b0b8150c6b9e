<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en">
<context>
    <name>AcceptFilter</name>
    <message>
        <source>Accept(1) or reject(0) notes</source>
        <translation>Принимать (1) или отклонять (0) купюры</translation>
    </message>
    <message>
        <source>Accept filter|If enabled and set to false, coin acceptors and BNVs shall reject all coins and notes</source>
        <translation>Фильтр приёма|Если фильтр включён и значение равно 0, монетоприёмники и купюроприёмники отклоняют все монеты и купюры.</translation>
    </message>
</context>
<context>
    <name>AttemptsFilter</name>
    <message>
        <source>Denomination</source>
        <translation>Номинал</translation>
    </message>
    <message>
        <source>Accept tries</source>
        <translation>Число попыток</translation>
    </message>
    <message>
        <source>Max attempts filter|Antiphishing filter. If BNV rejects note given number of times, the serviceshall reject this note &apos;till the end of the session even if BNV shall recognize it.</source>
        <translation>Фильтр числа попыток|Защита от «рыбалки». Если купюроприёмник отклонил купюру указанное число раз, сервис отклоняет её до конца сеанса, даже если купюроприёмник её распознает.</translation>
    </message>
</context>
<context>
    <name>DenomCountFilter</name>
    <message>
        <source>Denomination</source>
        <translation>Номинал</translation>
    </message>
    <message>
        <source>Max notes/coins count</source>
        <translation>Наибольшее число купюр или монет</translation>
    </message>
    <message>
        <source>Denomination count filter|Define max count of notes or coins accepted via session.</source>
        <translation>Фильтр числа купюр|Задаёт наибольшее число купюр или монет одного номинала, принимаемых за сеанс.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>wait money</source>
        <translation>ожидание денег</translation>
    </message>
    <message>
        <source>jamming</source>
        <translation>замятие</translation>
    </message>
    <message>
        <source>money accepted</source>
        <translation>деньги приняты</translation>
    </message>
    <message>
        <source>money accepting</source>
        <translation>приём денег</translation>
    </message>
    <message>
        <source>accepting money in stacker</source>
        <translation>укладка денег в стекер</translation>
    </message>
    <message>
        <source>money accepted in stacker</source>
        <translation>деньги уложены в стекер</translation>
    </message>
    <message>
        <source>disabled money acceptinng or summ overflow</source>
        <translation>приём денег отключён или превышена сумма</translation>
    </message>
    <message>
        <source>money reject</source>
        <translation>деньги отклонены</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>готов к приёму</translation>
    </message>
    <message>
        <source>unknown state</source>
        <translation>неизвестное состояние</translation>
    </message>
    <message>
        <source>DeviceId: %1,ThreadId: %2</source>
        <translation>Устройство: %1, поток: %2</translation>
    </message>
    <message>
        <source>Name: %1</source>
        <translation>Название: %1</translation>
    </message>
    <message>
        <source>Activity: %1</source>
        <translation>Работа: %1</translation>
    </message>
    <message>
        <source>enabled</source>
        <translation>включено</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>отключено</translation>
    </message>
    <message>
        <source>Critical error: </source>
        <translation>Критическая ошибка: </translation>
    </message>
    <message>
        <source>no description</source>
        <translation>без описания</translation>
    </message>
    <message>
        <source>stacker not present</source>
        <translation>стекер отсутствует</translation>
    </message>
    <message>
        <source>stacker is full</source>
        <translation>стекер заполнен</translation>
    </message>
    <message>
        <source>Status: </source>
        <translation>Состояние: </translation>
    </message>
    <message>
        <source>status description:</source>
        <translation>описание состояния: </translation>
    </message>
    <message>
        <source>Money accepting is disabled</source>
        <translation>Приём денег отключён</translation>
    </message>
    <message>
        <source>Input money or coin</source>
        <translation>Внесите купюры или монеты</translation>
    </message>
    <message>
        <source>Input money</source>
        <translation>Внесите купюры</translation>
    </message>
    <message>
        <source>Input coin</source>
        <translation>Внесите монеты</translation>
    </message>
    <message>
        <source>Error status unknown</source>
        <translation>Ошибка: состояние неизвестно</translation>
    </message>
    <message>
        <source>Wait...</source>
        <translation>Подождите...</translation>
    </message>
    <message>
        <source>Device state list is empty</source>
        <translation>Список состояний устройств пуст</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Неизвестно</translation>
    </message>
</context>
<context>
    <name>SessionSumFilter</name>
    <message>
        <source>Maximum session sum</source>
        <translation>Наибольшая сумма за сеанс</translation>
    </message>
    <message>
        <source>Max session sum filter|Sets maximum sum for the session</source>
        <translation>Фильтр суммы сеанса|Задаёт наибольшую сумму за сеанс.</translation>
    </message>
</context>
</TS>
