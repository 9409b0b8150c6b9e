<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en">
<context>
    <name>CassetteTable</name>
    <message>
        <source>Place</source>
        <translation>Место</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Номинал</translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Штук</translation>
    </message>
    <message>
        <source>Rejected</source>
        <translation>Отбраковано</translation>
    </message>
    <message>
        <source>Cassette</source>
        <translation>Кассета</translation>
    </message>
    <message>
        <source>Rejects</source>
        <translation>Отбраковка</translation>
    </message>
    <message>
        <source>Channel %1</source>
        <translation>Канал %1</translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation>от %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1–%2</translation>
    </message>
    <message>
        <source>Hopper %1</source>
        <translation>Хоппер %1</translation>
    </message>
    <message>
        <source>Cassette %1</source>
        <translation>Кассета %1</translation>
    </message>
    <message>
        <source>Content by the log</source>
        <translation>Содержимое по журналу</translation>
    </message>
    <message>
        <source>Content by the device</source>
        <translation>Содержимое по данным устройства</translation>
    </message>
</context>
<context>
    <name>DeviceCard</name>
    <message>
        <source>switched off</source>
        <translation>выключено</translation>
    </message>
    <message>
        <source>Stuck: %1, since %2</source>
        <translation>Застряло: %1, с&#xa0;%2</translation>
    </message>
    <message>
        <source>On its way: %1, since %2</source>
        <translation>В пути: %1, с&#xa0;%2</translation>
    </message>
    <message>
        <source>device %1, thread %2</source>
        <translation>устройство %1, поток %2</translation>
    </message>
    <message>
        <source>Inserted %1, rejected %2, returned %3</source>
        <translation>Внесено: %1, отклонено: %2, возвращено: %3</translation>
    </message>
    <message>
        <source>As last reported; there is no news since.</source>
        <translation>Последние известные данные; новых нет.</translation>
    </message>
</context>
<context>
    <name>DeviceCards</name>
    <message>
        <source>Devices: %1, with faults: %2</source>
        <translation>Устройств: %1, неисправных: %2</translation>
    </message>
</context>
<context>
    <name>FaultBanner</name>
    <message>
        <source>No device has a fault.</source>
        <translation>Неисправностей нет.</translation>
    </message>
    <message>
        <source>Other faults: %1</source>
        <translation>Другие неисправности: %1</translation>
    </message>
</context>
<context>
    <name>KioskLamp</name>
    <message>
        <source>%1: on</source>
        <translation>%1: да</translation>
    </message>
    <message>
        <source>%1: off</source>
        <translation>%1: нет</translation>
    </message>
</context>
<context>
    <name>MoneyStrip</name>
    <message>
        <source>Help: %1</source>
        <translation>Помощь: %1</translation>
    </message>
    <message>
        <source>This kiosk gives no change.</source>
        <translation>Сдача не&#xa0;выдаётся.</translation>
    </message>
    <message>
        <source>Change is paid out.</source>
        <translation>Сдача выдаётся.</translation>
    </message>
    <message>
        <source>You have paid %1 too much.</source>
        <translation>Переплата: %1.</translation>
    </message>
    <message>
        <source>This kiosk gives no change. Please call the staff.</source>
        <translation>Сдача не&#xa0;выдаётся. Позовите&#xa0;сотрудника.</translation>
    </message>
    <message>
        <source>You get your change back. If it does not come, please call the staff.</source>
        <translation>Вам будет выдана сдача. Если&#xa0;её&#xa0;нет, позовите&#xa0;сотрудника.</translation>
    </message>
    <message>
        <source>It stays on your account.</source>
        <translation>Она остаётся на&#xa0;вашем&#xa0;счёте.</translation>
    </message>
    <message>
        <source>Please ask the staff for your change.</source>
        <translation>За сдачей обратитесь к&#xa0;сотруднику.</translation>
    </message>
    <message>
        <source>It is recorded. Please call the staff.</source>
        <translation>Запись о них сохранена. Позовите&#xa0;сотрудника.</translation>
    </message>
    <message>
        <source>Please call the staff.</source>
        <translation>Позовите&#xa0;сотрудника.</translation>
    </message>
    <message>
        <source>Left to pay</source>
        <translation>Осталось внести</translation>
    </message>
    <message>
        <source>Paid</source>
        <translation>Внесено</translation>
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
        <source>What you overpay stays on your account.</source>
        <translation>Переплата остаётся на&#xa0;вашем&#xa0;счёте.</translation>
    </message>
    <message>
        <source>Before a fault you had paid %1 more. It is missing from the sum now.</source>
        <translation>До сбоя вы внесли ещё %1. Сейчас эти деньги не&#xa0;учтены в&#xa0;сумме.</translation>
    </message>
</context>
<context>
    <name>NoteBanner</name>
    <message>
        <source>Your money is still in the device. Please call the staff.</source>
        <translation>Ваши деньги ещё в&#xa0;устройстве. Позовите&#xa0;сотрудника.</translation>
    </message>
    <message>
        <source>No.&#xa0;%1</source>
        <translation>№&#xa0;%1</translation>
    </message>
    <message>
        <source>Help: %1</source>
        <translation>Помощь: %1</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>и ещё %n</numerusform>
            <numerusform>и ещё %n</numerusform>
            <numerusform>и ещё %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>OpenMoney</name>
    <message>
        <source>Settled</source>
        <translation>Решено</translation>
    </message>
    <message>
        <source>Really settled</source>
        <translation>Да, решено</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>No.&#xa0;%1</source>
        <translation>№&#xa0;%1</translation>
    </message>
    <message>
        <source>It is stuck in the device.</source>
        <translation>Деньги застряли в&#xa0;устройстве.</translation>
    </message>
    <message>
        <source>The service did not take it as settled.</source>
        <translation>Служба не приняла эту отметку.</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>и ещё %n</numerusform>
            <numerusform>и ещё %n</numerusform>
            <numerusform>и ещё %n</numerusform>
        </translation>
    </message>
    <message>
        <source>It is not known what became of it.</source>
        <translation>Что стало с этими деньгами, неизвестно.</translation>
    </message>
    <message>
        <source>The customer had paid this much before the service was lost; it is missing from the sum.</source>
        <translation>Столько клиент внёс до сбоя службы; в&#xa0;сумме этих денег нет.</translation>
    </message>
</context>
<context>
    <name>PaymentPrompt</name>
    <message>
        <source>Help: %1</source>
        <translation>Помощь: %1</translation>
    </message>
    <message>
        <source>Please call the staff before you leave. Insert no more money.</source>
        <translation>Не вносите больше денег. Не уходите, позовите сотрудника.</translation>
    </message>
    <message>
        <source>Please call the staff before you leave.</source>
        <translation>Не уходите, позовите сотрудника.</translation>
    </message>
    <message>
        <source>What you have paid is recorded. Please call the staff.</source>
        <translation>Внесённая сумма записана. Позовите&#xa0;сотрудника.</translation>
    </message>
    <message>
        <source>Please use another kiosk.</source>
        <translation>Воспользуйтесь другим терминалом.</translation>
    </message>
    <message>
        <source>Paid. Thank you!</source>
        <translation>Оплата принята</translation>
    </message>
    <message>
        <source>This takes longer than usual.</source>
        <translation>Ожидание затянулось.</translation>
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
</context>
<context>
    <name>PinGate</name>
    <message>
        <source>There is no PIN: the screens of the staff stay closed.</source>
        <translation>Нет ПИН-кода: экраны для сотрудников закрыты.</translation>
    </message>
    <message>
        <source>Wrong PIN. Wait %1 s.</source>
        <translation>Неверный ПИН-код. Подождите %1&#xa0;с.</translation>
    </message>
    <message>
        <source>Wrong PIN. Try again.</source>
        <translation>Неверный ПИН-код. Попробуйте ещё раз.</translation>
    </message>
    <message>
        <source>For the staff: enter the PIN.</source>
        <translation>Для сотрудников: введите ПИН-код.</translation>
    </message>
    <message>
        <source>Digits entered: %1</source>
        <translation>Введено цифр: %1</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Стереть</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>SettingsForm</name>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>%1 or more</source>
        <translation>не&#xa0;меньше&#xa0;%1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>от %1 до %2</translation>
    </message>
    <message>
        <source>Enter a whole number: %1.</source>
        <translation>Введите целое число: %1.</translation>
    </message>
    <message>
        <source>Enter a text.</source>
        <translation>Введите текст.</translation>
    </message>
    <message>
        <source>“%1” is none of the choices. Choose one.</source>
        <translation>Значения «%1» нет среди вариантов. Выберите вариант.</translation>
    </message>
    <message>
        <source>The service cannot work with this.</source>
        <translation>С этим служба работать не сможет.</translation>
    </message>
    <message>
        <source>on</source>
        <translation>вкл.</translation>
    </message>
    <message>
        <source>off</source>
        <translation>выкл.</translation>
    </message>
    <message>
        <source>this is the default</source>
        <translation>встроенное</translation>
    </message>
    <message>
        <source>default: %1</source>
        <translation>встроенное:&#xa0;%1</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>пусто</translation>
    </message>
    <message>
        <source>To be changed in the settings window or with “velmo settings”.</source>
        <translation>Меняется в окне настроек или командой «velmo settings».</translation>
    </message>
</context>
<context>
    <name>StateAge</name>
    <message>
        <source>No state yet.</source>
        <translation>Состояние ещё не получено.</translation>
    </message>
    <message>
        <source>State of %1, %2 s old.</source>
        <translation>Состояние на %1, %2&#xa0;с назад.</translation>
    </message>
</context>
</TS>
