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
        <translation>Фильтр числа попыток|Защита от «рыбалки». Если купюроприёмник отклонил купюру указанное число раз, служба отклоняет её до конца сеанса, даже если купюроприёмник её распознает.</translation>
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
<context>
    <name>SettingDescription</name>
    <message>
        <source>Accept all</source>
        <translation>Принимать всё</translation>
    </message>
    <message>
        <source>Whether all notes and coins are accepted.</source>
        <translation>Принимаются ли все купюры и монеты.</translation>
    </message>
    <message>
        <source>Maximum sum</source>
        <translation>Наибольшая сумма</translation>
    </message>
    <message>
        <source>The maximum sum, in the unit that the service uses.</source>
        <translation>Наибольшая сумма в единицах службы.</translation>
    </message>
    <message>
        <source>Statistics reset mode</source>
        <translation>Режим сброса статистики</translation>
    </message>
    <message>
        <source>How the service resets its statistics, as the service&apos;s own number.</source>
        <translation>Как служба сбрасывает статистику: номер режима службы.</translation>
    </message>
    <message>
        <source>Anti-fishing limits</source>
        <translation>Пределы защиты от «рыбалки»</translation>
    </message>
    <message>
        <source>How many rejections of a denomination a session allows.</source>
        <translation>Сколько отклонений купюр номинала допускается за сеанс.</translation>
    </message>
    <message>
        <source>Port log</source>
        <translation>Журнал портов</translation>
    </message>
    <message>
        <source>Whether the traffic on the devices&apos; ports is logged.</source>
        <translation>Записывается ли обмен по портам устройств в журнал.</translation>
    </message>
    <message>
        <source>Number of devices</source>
        <translation>Число устройств</translation>
    </message>
    <message>
        <source>How many devices the service drives: those with an index below it.</source>
        <translation>Сколькими устройствами управляет служба: их индексы меньше этого числа.</translation>
    </message>
    <message>
        <source>Idle reset timeout</source>
        <translation>Время простоя до сброса</translation>
    </message>
    <message>
        <source>Idle time after which the service resets, in the service&apos;s own unit.</source>
        <translation>Время простоя, после которого служба выполняет сброс, в единицах службы.</translation>
    </message>
    <message>
        <source>Route map</source>
        <translation>Карта маршрутов</translation>
    </message>
    <message>
        <source>Where the service sends notes and coins of each kind.</source>
        <translation>Куда служба направляет купюры и монеты каждого вида.</translation>
    </message>
    <message>
        <source>Port log of the device</source>
        <translation>Журнал порта устройства</translation>
    </message>
    <message>
        <source>Whether the traffic on this device&apos;s port is logged; a list that is written anew has the common switch.</source>
        <translation>Записывается ли обмен по порту этого устройства; в заново записанном списке стоит общий переключатель.</translation>
    </message>
    <message>
        <source>Response time</source>
        <translation>Время ответа</translation>
    </message>
    <message>
        <source>How long an answer of the device may take, in the protocol&apos;s own unit.</source>
        <translation>Сколько можно ждать ответа устройства, в единицах протокола.</translation>
    </message>
    <message>
        <source>Polling interval</source>
        <translation>Интервал опроса</translation>
    </message>
    <message>
        <source>How often the device is asked for its state, in the protocol&apos;s own unit.</source>
        <translation>Как часто опрашивается состояние устройства, в единицах протокола.</translation>
    </message>
    <message>
        <source>Bill table interval</source>
        <translation>Интервал таблицы купюр</translation>
    </message>
    <message>
        <source>Pace of reading the device&apos;s table of notes, in the protocol&apos;s own unit.</source>
        <translation>Интервал чтения таблицы купюр устройства, в единицах протокола.</translation>
    </message>
    <message>
        <source>Reset interval</source>
        <translation>Интервал сброса</translation>
    </message>
    <message>
        <source>Pace of resetting the device, in the protocol&apos;s own unit.</source>
        <translation>Интервал сброса устройства, в единицах протокола.</translation>
    </message>
    <message>
        <source>Rest interval</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>Rest between two messages to the device, in the protocol&apos;s own unit.</source>
        <translation>Пауза между двумя сообщениями устройству, в единицах протокола.</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Модель</translation>
    </message>
    <message>
        <source>The device model, as its number in the catalogue.</source>
        <translation>Модель устройства: её номер в каталоге.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Название</translation>
    </message>
    <message>
        <source>What the device is called.</source>
        <translation>Как называется устройство.</translation>
    </message>
    <message>
        <source>Terminal identifier</source>
        <translation>Идентификатор терминала</translation>
    </message>
    <message>
        <source>The identifier of the card terminal.</source>
        <translation>Идентификатор карточного терминала.</translation>
    </message>
    <message>
        <source>Acknowledgement timeout</source>
        <translation>Время ожидания подтверждения</translation>
    </message>
    <message>
        <source>How long an acknowledgement may take, in the protocol&apos;s own unit.</source>
        <translation>Сколько можно ждать подтверждения, в единицах протокола.</translation>
    </message>
    <message>
        <source>Packet timeout</source>
        <translation>Время ожидания пакета</translation>
    </message>
    <message>
        <source>How long a packet may take, in the protocol&apos;s own unit.</source>
        <translation>Сколько можно ждать пакета, в единицах протокола.</translation>
    </message>
    <message>
        <source>Negative acknowledgements</source>
        <translation>Отрицательные подтверждения</translation>
    </message>
    <message>
        <source>After how many negative acknowledgements a packet is given up.</source>
        <translation>После скольких отрицательных подтверждений пакет больше не передаётся.</translation>
    </message>
    <message>
        <source>Packet size</source>
        <translation>Размер пакета</translation>
    </message>
    <message>
        <source>The largest packet, in bytes.</source>
        <translation>Наибольший размер пакета в байтах.</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Подключение</translation>
    </message>
    <message>
        <source>How the device is connected: a serial port, or TCP.</source>
        <translation>Как подключено устройство: последовательный порт или TCP.</translation>
    </message>
    <message>
        <source>TCP host</source>
        <translation>Узел TCP</translation>
    </message>
    <message>
        <source>Name or address of the host that answers for the device.</source>
        <translation>Имя или адрес узла, который отвечает за устройство.</translation>
    </message>
    <message>
        <source>TCP port</source>
        <translation>Порт TCP</translation>
    </message>
    <message>
        <source>TCP port of the device.</source>
        <translation>Порт TCP устройства.</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>Последовательный порт</translation>
    </message>
    <message>
        <source>The serial port that the device is attached to.</source>
        <translation>Последовательный порт, к которому подключено устройство.</translation>
    </message>
    <message>
        <source>Baud rate</source>
        <translation>Скорость</translation>
    </message>
    <message>
        <source>Speed of the serial port, in bits per second.</source>
        <translation>Скорость последовательного порта в битах в секунду.</translation>
    </message>
    <message>
        <source>Flow control</source>
        <translation>Управление потоком</translation>
    </message>
    <message>
        <source>Who stops the serial line: the hardware, characters in the line, or none.</source>
        <translation>Что останавливает передачу по линии: аппаратура, символы в линии или ничего.</translation>
    </message>
    <message>
        <source>Parity</source>
        <translation>Чётность</translation>
    </message>
    <message>
        <source>Parity of the serial line.</source>
        <translation>Контроль чётности последовательной линии.</translation>
    </message>
    <message>
        <source>Data bits</source>
        <translation>Биты данных</translation>
    </message>
    <message>
        <source>Data bits of a character on the serial line.</source>
        <translation>Число битов данных в символе последовательной линии.</translation>
    </message>
    <message>
        <source>Stop bits</source>
        <translation>Стоповые биты</translation>
    </message>
    <message>
        <source>Stop bits of a character on the serial line; 3 means one and a half.</source>
        <translation>Число стоповых битов в символе последовательной линии; 3 означает полтора.</translation>
    </message>
</context>
</TS>
