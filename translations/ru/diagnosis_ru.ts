<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en">
<context>
    <name>Diagnosis</name>
    <message>
        <source>Session %1</source>
        <translation>Сеанс %1</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>строка %1</translation>
    </message>
    <message>
        <source>It was taken although refused (line %1).</source>
        <translation>Она принята устройством вопреки отказу фильтров (строка %1).</translation>
    </message>
    <message>
        <source>By the device itself; no filter objected.</source>
        <translation>Решило само устройство; ни один фильтр не возражал.</translation>
    </message>
    <message>
        <source>Uncertain: %1.</source>
        <translation>Не наверняка: %1.</translation>
    </message>
    <message>
        <source>the log begins in the middle of this session</source>
        <translation>журнал начинается с середины этого сеанса</translation>
    </message>
    <message numerus="yes">
        <source>%n lines were skipped in this session</source>
        <translation>
            <numerusform>в этом сеансе пропущена %n строка</numerusform>
            <numerusform>в этом сеансе пропущены %n строки</numerusform>
            <numerusform>в этом сеансе пропущено %n строк</numerusform>
        </translation>
    </message>
    <message>
        <source>expected an object with the filter&apos;s &quot;name&quot;</source>
        <translation>ожидается объект с именем фильтра &quot;name&quot;</translation>
    </message>
    <message>
        <source>unknown key &quot;%1&quot;</source>
        <translation>неизвестный ключ &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;params&quot;: expected an object</source>
        <translation>&quot;params&quot;: ожидается объект</translation>
    </message>
    <message>
        <source>unknown filter &quot;%1&quot; (known: %2)</source>
        <translation>неизвестный фильтр &quot;%1&quot; (известны: %2)</translation>
    </message>
    <message>
        <source>%1: unknown parameter &quot;%2&quot; (known: %3)</source>
        <translation>%1: неизвестный параметр &quot;%2&quot; (известны: %3)</translation>
    </message>
    <message>
        <source>%1: parameter &quot;%2&quot; cannot hold this value</source>
        <translation>%1: параметр &quot;%2&quot; не может иметь такое значение</translation>
    </message>
    <message>
        <source>%1: is a settings list, where a filters file is expected</source>
        <translation>%1: это список настроек, а ожидается файл фильтров</translation>
    </message>
    <message>
        <source>%1: is a filters file, where a settings list is expected</source>
        <translation>%1: это файл фильтров, а ожидается список настроек</translation>
    </message>
    <message>
        <source>Every note may be taken as far as the accept filter is concerned.</source>
        <translation>Фильтр приёма пропускает любую купюру.</translation>
    </message>
    <message>
        <source>Every note is refused.</source>
        <translation>Не принимается ни одна купюра.</translation>
    </message>
    <message numerus="yes">
        <source>A note of %1 is refused once notes were rejected %n times, until a note is stacked or the session ends.</source>
        <translation>
            <numerusform>Купюра %1 не принимается после %n отклонения, пока какая-нибудь купюра не окажется в стекере или не закончится сеанс.</numerusform>
            <numerusform>Купюра %1 не принимается после %n отклонений, пока какая-нибудь купюра не окажется в стекере или не закончится сеанс.</numerusform>
            <numerusform>Купюра %1 не принимается после %n отклонений, пока какая-нибудь купюра не окажется в стекере или не закончится сеанс.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A session takes at most %n notes of %1.</source>
        <translation>
            <numerusform>За сеанс принимается не больше %n купюры %1.</numerusform>
            <numerusform>За сеанс принимается не больше %n купюр %1.</numerusform>
            <numerusform>За сеанс принимается не больше %n купюр %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>A session takes at most %1 in all.</source>
        <translation>За сеанс принимается не больше %1 всего.</translation>
    </message>
    <message>
        <source>at last in %1</source>
        <translation>последняя из них в %1</translation>
    </message>
    <message>
        <source>All notes are switched off (acceptAll is 0).</source>
        <translation>Приём всех купюр выключен (acceptAll равен 0).</translation>
    </message>
    <message>
        <source>No attempts at all are allowed for %1.</source>
        <translation>Для %1 не допускается ни одной попытки.</translation>
    </message>
    <message numerus="yes">
        <source>Notes were rejected %n times since the stacked note of line %4 (%1); %2 are allowed for %3. The next stacked note or session clears this.</source>
        <translation>
            <numerusform>С уложенной купюры в строке %4 купюры отклонялись %n раз (%1); для %3 допускается %2. Сбросит это следующая уложенная купюра или новый сеанс.</numerusform>
            <numerusform>С уложенной купюры в строке %4 купюры отклонялись %n раза (%1); для %3 допускается %2. Сбросит это следующая уложенная купюра или новый сеанс.</numerusform>
            <numerusform>С уложенной купюры в строке %4 купюры отклонялись %n раз (%1); для %3 допускается %2. Сбросит это следующая уложенная купюра или новый сеанс.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Notes were rejected %n times since the session began (%1); %2 are allowed for %3. The next stacked note or session clears this.</source>
        <translation>
            <numerusform>С начала сеанса купюры отклонялись %n раз (%1); для %3 допускается %2. Сбросит это следующая уложенная купюра или новый сеанс.</numerusform>
            <numerusform>С начала сеанса купюры отклонялись %n раза (%1); для %3 допускается %2. Сбросит это следующая уложенная купюра или новый сеанс.</numerusform>
            <numerusform>С начала сеанса купюры отклонялись %n раз (%1); для %3 допускается %2. Сбросит это следующая уложенная купюра или новый сеанс.</numerusform>
        </translation>
    </message>
    <message>
        <source>No notes of %1 are allowed at all.</source>
        <translation>Купюры %1 не принимаются совсем.</translation>
    </message>
    <message numerus="yes">
        <source>%n notes of %1 were accepted since the session began (%2); %3 are allowed. The next session clears this.</source>
        <translation>
            <numerusform>С начала сеанса принята %n купюра %1 (%2); допускается %3. Сбросит это следующий сеанс.</numerusform>
            <numerusform>С начала сеанса приняты %n купюры %1 (%2); допускается %3. Сбросит это следующий сеанс.</numerusform>
            <numerusform>С начала сеанса принято %n купюр %1 (%2); допускается %3. Сбросит это следующий сеанс.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 taken + note %2 &gt; limit %3. The next session clears this.</source>
        <translation>принято %1 + купюра %2 &gt; предел %3. Сбросит это следующий сеанс.</translation>
    </message>
    <message>
        <source>Switches the taking of all notes and coins on or off.</source>
        <translation>Включает и выключает приём всех купюр и монет.</translation>
    </message>
    <message>
        <source>Guards against fishing: once the device has rejected notes a number of times, a note of one face value is refused until a note is stacked or the session ends.</source>
        <translation>Защищает от выуживания: когда устройство отклонило купюры заданное число раз, купюра одного номинала не принимается, пока какая-нибудь купюра не окажется в стекере или не закончится сеанс.</translation>
    </message>
    <message>
        <source>Limits how many notes or coins of one face value a session takes.</source>
        <translation>Ограничивает число купюр или монет одного номинала за сеанс.</translation>
    </message>
    <message>
        <source>Limits the sum that a session takes.</source>
        <translation>Ограничивает сумму, которая принимается за сеанс.</translation>
    </message>
    <message>
        <source>lines %1 and %2</source>
        <translation>строки %1 и %2</translation>
    </message>
    <message>
        <source>the compressed file is cut off</source>
        <translation>сжатый файл обрывается</translation>
    </message>
    <message>
        <source>the compressed file is damaged</source>
        <translation>сжатый файл повреждён</translation>
    </message>
    <message>
        <source>The device was disabled (since line %1).</source>
        <translation>Устройство было выключено (со строки %1).</translation>
    </message>
    <message>
        <source>The device was offline (since line %1).</source>
        <translation>Устройство было не на связи (со строки %1).</translation>
    </message>
    <message>
        <source>The device was halted (since line %1).</source>
        <translation>Устройство было остановлено (со строки %1).</translation>
    </message>
    <message>
        <source>The device had a critical error (since line %1): %2.</source>
        <translation>У устройства была критическая ошибка (со строки %1): %2.</translation>
    </message>
    <message>
        <source>The stacker was missing (since line %1).</source>
        <translation>Стекера не было (со строки %1).</translation>
    </message>
    <message>
        <source>The stacker was full (since line %1).</source>
        <translation>Стекер был полон (со строки %1).</translation>
    </message>
    <message>
        <source>Bill validator</source>
        <translation>Купюроприёмник</translation>
    </message>
    <message>
        <source>Coin acceptor</source>
        <translation>Монетоприёмник</translation>
    </message>
    <message>
        <source>Card terminal</source>
        <translation>Карточный терминал</translation>
    </message>
    <message>
        <source>Note dispenser</source>
        <translation>Диспенсер купюр</translation>
    </message>
    <message>
        <source>Note recycler</source>
        <translation>Рециркулятор купюр</translation>
    </message>
    <message>
        <source>Coin hopper</source>
        <translation>Монетный хоппер</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Устройство</translation>
    </message>
    <message>
        <source>Device %1</source>
        <translation>Устройство %1</translation>
    </message>
    <message>
        <source>no description</source>
        <translation>без описания</translation>
    </message>
    <message>
        <source>%1, thread %2</source>
        <translation>%1, поток %2</translation>
    </message>
    <message>
        <source>expected true or false</source>
        <translation>ожидается true или false</translation>
    </message>
    <message>
        <source>expected a text</source>
        <translation>ожидается текст</translation>
    </message>
    <message>
        <source>expected a whole number from %1 to %2</source>
        <translation>ожидается целое число от %1 до %2</translation>
    </message>
    <message>
        <source>unknown state name &quot;%1&quot;</source>
        <translation>неизвестное имя состояния &quot;%1&quot;</translation>
    </message>
    <message>
        <source>key &quot;%1&quot; is missing</source>
        <translation>нет ключа &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot hold this value</source>
        <translation>&quot;%1&quot; не может иметь такое значение</translation>
    </message>
    <message>
        <source>expected a list of registry rows</source>
        <translation>ожидается список строк реестра</translation>
    </message>
    <message>
        <source>row %1: %2</source>
        <translation>строка реестра %1: %2</translation>
    </message>
    <message>
        <source>expected a list &quot;device_states&quot;</source>
        <translation>ожидается список &quot;device_states&quot;</translation>
    </message>
    <message>
        <source>expected a JSON object</source>
        <translation>ожидается объект JSON</translation>
    </message>
    <message>
        <source>&quot;device_states&quot;: element %1: %2</source>
        <translation>&quot;device_states&quot;: элемент %1: %2</translation>
    </message>
    <message>
        <source>&quot;session&quot;: expected &quot;start&quot;</source>
        <translation>&quot;session&quot;: ожидается &quot;start&quot;</translation>
    </message>
    <message>
        <source>fields of one device beside &quot;device_states&quot;</source>
        <translation>поля одного устройства рядом с &quot;device_states&quot;</translation>
    </message>
    <message>
        <source>more than 256 MiB of text at once</source>
        <translation>больше 256 МиБ текста сразу</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: expected GROUP/KEY</source>
        <translation>&quot;%1&quot;: ожидается GROUP/KEY</translation>
    </message>
    <message>
        <source>out of its range %1 to %2</source>
        <translation>вне допустимых границ от %1 до %2</translation>
    </message>
    <message>
        <source>no whole number</source>
        <translation>не целое число</translation>
    </message>
    <message>
        <source>neither 0 nor 1</source>
        <translation>не 0 и не 1</translation>
    </message>
    <message>
        <source>none of %1</source>
        <translation>не из числа: %1</translation>
    </message>
    <message>
        <source>no JSON array of limits, each with &quot;denom&quot; and &quot;attempts&quot; of 1 or more</source>
        <translation>не массив JSON пределов, у каждого из которых &quot;denom&quot; и &quot;attempts&quot; не меньше 1</translation>
    </message>
    <message numerus="yes">
        <source>no JSON array of whole routes; %n can be read</source>
        <translation>
            <numerusform>не массив JSON полных маршрутов; прочесть можно %n</numerusform>
            <numerusform>не массив JSON полных маршрутов; прочесть можно %n</numerusform>
            <numerusform>не массив JSON полных маршрутов; прочесть можно %n</numerusform>
        </translation>
    </message>
    <message>
        <source>no address: the device is not found</source>
        <translation>не адрес: устройство не найдётся</translation>
    </message>
    <message>
        <source>is skipped: no &quot;group&quot;</source>
        <translation>пропускается: нет &quot;group&quot;</translation>
    </message>
    <message>
        <source>is set again by a later element, to the same</source>
        <translation>задаётся ещё раз дальше, так же</translation>
    </message>
    <message>
        <source>does not count: a later element sets it again</source>
        <translation>не действует: дальше задаётся ещё раз</translation>
    </message>
    <message>
        <source>has no effect: not for a device of this model and interface</source>
        <translation>не действует: не для устройства этой модели и с этим интерфейсом</translation>
    </message>
    <message>
        <source>is read as %1</source>
        <translation>читается как %1</translation>
    </message>
    <message>
        <source>has no text or number: reads as &quot;%1&quot;</source>
        <translation>не текст и не число: читается как &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2</source>
        <translation>&quot;%1&quot; - %2</translation>
    </message>
    <message>
        <source>: reads as &quot;%1&quot;</source>
        <translation>: читается как &quot;%1&quot;</translation>
    </message>
    <message>
        <source>is missing: the service drives no device</source>
        <translation>нет: служба не управляет ни одним устройством</translation>
    </message>
    <message>
        <source>is missing, but below the device count</source>
        <translation>нет, хотя число устройств больше</translation>
    </message>
    <message>
        <source>and more up to %1 are missing, but below the device count</source>
        <translation>и следующих до %1 нет, хотя число устройств больше</translation>
    </message>
    <message>
        <source>is not below the device count: the service does not drive it</source>
        <translation>не меньше числа устройств: служба им не управляет</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is where %2 is too</source>
        <translation>&quot;%1&quot; - там же и %2</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>нет</translation>
    </message>
    <message>
        <source>: there is no built-in default, AcceptorSettings has &quot;%1&quot;</source>
        <translation>: встроенного значения нет, в AcceptorSettings &quot;%1&quot;</translation>
    </message>
    <message>
        <source>: the built-in default is &quot;%1&quot;, AcceptorSettings has &quot;%2&quot;</source>
        <translation>: встроенное значение &quot;%1&quot;, в AcceptorSettings &quot;%2&quot;</translation>
    </message>
    <message>
        <source>differs from %1, which AcceptorSettings writes here</source>
        <translation>отличается от %1, которое пишет сюда AcceptorSettings</translation>
    </message>
    <message>
        <source>error</source>
        <translation>ошибка</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>предупреждение</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: expected SETTING=VALUE</source>
        <translation>&quot;%1&quot;: ожидается НАСТРОЙКА=ЗНАЧЕНИЕ</translation>
    </message>
    <message>
        <source>%1: there is no %2; velmo settings add-device makes %3</source>
        <translation>%1: нет %2; velmo settings add-device добавит %3</translation>
    </message>
    <message>
        <source>%1 has no built-in default and gets that of %2</source>
        <translation>у %1 нет встроенного значения, взято значение %2</translation>
    </message>
    <message>
        <source>%1 is not in the list</source>
        <translation>%1 нет в списке</translation>
    </message>
    <message>
        <source>%1: there is no %2</source>
        <translation>%1: нет %2</translation>
    </message>
    <message>
        <source>%1 becomes %2</source>
        <translation>%1 становится %2</translation>
    </message>
    <message>
        <source>a service state</source>
        <translation>состояние службы</translation>
    </message>
    <message>
        <source>a formatted settings map</source>
        <translation>карту настроек</translation>
    </message>
    <message>
        <source>a session log</source>
        <translation>журнал сеансов</translation>
    </message>
    <message>
        <source>a device state or a line of a session log</source>
        <translation>состояние устройства или строку журнала сеансов</translation>
    </message>
    <message>
        <source>a filters file</source>
        <translation>файл фильтров</translation>
    </message>
    <message>
        <source>what velmo settings show --json prints</source>
        <translation>то, что печатает velmo settings show --json</translation>
    </message>
    <message>
        <source>a route map</source>
        <translation>карту маршрутов</translation>
    </message>
    <message>
        <source>a list of anti-fishing limits</source>
        <translation>список пределов защиты от выуживания</translation>
    </message>
    <message>
        <source>the catalogue of devices</source>
        <translation>каталог устройств</translation>
    </message>
    <message>
        <source>an empty list</source>
        <translation>пустой список</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>настройки</translation>
    </message>
    <message>
        <source>%1: not a settings list: no element is a known setting</source>
        <translation>%1: не список настроек: ни один элемент не является известной настройкой</translation>
    </message>
    <message>
        <source>%1: not a settings list: looks like %2</source>
        <translation>%1: не список настроек: похоже на %2</translation>
    </message>
    <message>
        <source>The device is disabled.</source>
        <translation>Устройство выключено.</translation>
    </message>
    <message>
        <source>The device is halted.</source>
        <translation>Устройство остановлено.</translation>
    </message>
    <message>
        <source>The stacker is missing.</source>
        <translation>Стекера нет.</translation>
    </message>
    <message>
        <source>The stacker is full.</source>
        <translation>Стекер полон.</translation>
    </message>
    <message>
        <source>The device has a critical error: %1.</source>
        <translation>У устройства критическая ошибка: %1.</translation>
    </message>
    <message>
        <source>The service tells of no device.</source>
        <translation>Служба не сообщает ни об одном устройстве.</translation>
    </message>
    <message>
        <source>Every device is disabled.</source>
        <translation>Все устройства выключены.</translation>
    </message>
    <message>
        <source>The device is not ready for notes; its state: %1.</source>
        <translation>Устройство не готово к приёму купюр; его состояние: %1.</translation>
    </message>
    <message>
        <source>%1: %2 refused by A, accepted by B. A: %3</source>
        <translation>%1: %2 не принята по A, принята по B. A: %3</translation>
    </message>
    <message>
        <source>%1: %2 accepted by A, refused by B. B: %3</source>
        <translation>%1: %2 принята по A, не принята по B. B: %3</translation>
    </message>
    <message>
        <source>coin of %1</source>
        <translation>монета %1</translation>
    </message>
    <message>
        <source>note of %1</source>
        <translation>купюра %1</translation>
    </message>
    <message>
        <source>Offered</source>
        <translation>Предложены</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Приняты</translation>
    </message>
    <message>
        <source>Refused by the filters</source>
        <translation>Не приняты фильтрами</translation>
    </message>
    <message>
        <source>taken although refused</source>
        <translation>приняты вопреки фильтрам</translation>
    </message>
    <message>
        <source>Rejected by the device</source>
        <translation>Отклонены устройством</translation>
    </message>
    <message>
        <source>Returned</source>
        <translation>Возвращены</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Неизвестно</translation>
    </message>
    <message>
        <source>Show:</source>
        <translation>Показать:</translation>
    </message>
    <message numerus="yes">
        <source>%n refused</source>
        <translation>
            <numerusform>не принято: %n</numerusform>
            <numerusform>не принято: %n</numerusform>
            <numerusform>не принято: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n taken</source>
        <translation>
            <numerusform>принято: %n</numerusform>
            <numerusform>принято: %n</numerusform>
            <numerusform>принято: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rejected</source>
        <translation>
            <numerusform>отклонено: %n</numerusform>
            <numerusform>отклонено: %n</numerusform>
            <numerusform>отклонено: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n returned</source>
        <translation>
            <numerusform>возвращено: %n</numerusform>
            <numerusform>возвращено: %n</numerusform>
            <numerusform>возвращено: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n unknown</source>
        <translation>
            <numerusform>неизвестно: %n</numerusform>
            <numerusform>неизвестно: %n</numerusform>
            <numerusform>неизвестно: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>refused by the filters</source>
        <translation>не принята фильтрами</translation>
    </message>
    <message>
        <source>taken</source>
        <translation>принята</translation>
    </message>
    <message>
        <source>rejected by the device</source>
        <translation>отклонена устройством</translation>
    </message>
    <message>
        <source>returned</source>
        <translation>возвращена</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>неизвестно</translation>
    </message>
    <message>
        <source>Where much happens at once, the pictures are stretched. A mark leads to its sentence, a sentence to its mark and to what it speaks of.</source>
        <translation>Где сразу происходит много, рисунок растянут. Знак ведёт к своему предложению, предложение - к своему знаку и к тому, о чём в нём говорится.</translation>
    </message>
    <message>
        <source>en</source>
        <comment>language code</comment>
        <extracomment>The language of these words, for the attribute lang of HTML.</extracomment>
        <translation>ru</translation>
    </message>
    <message numerus="yes">
        <source>%n lines could not be read and were skipped</source>
        <translation>
            <numerusform>не удалось прочесть %n строку, она пропущена</numerusform>
            <numerusform>не удалось прочесть %n строки, они пропущены</numerusform>
            <numerusform>не удалось прочесть %n строк, они пропущены</numerusform>
        </translation>
    </message>
    <message>
        <source>lines %1 to %2</source>
        <translation>строки с %1 по %2</translation>
    </message>
    <message>
        <source>Picture, %1</source>
        <translation>Рисунок, %1</translation>
    </message>
    <message>
        <source>No note to tell of.</source>
        <translation>Ни об одной купюре сказать нечего.</translation>
    </message>
    <message numerus="yes">
        <source>%n sessions</source>
        <translation>
            <numerusform>%n сеанс</numerusform>
            <numerusform>%n сеанса</numerusform>
            <numerusform>%n сеансов</numerusform>
        </translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Купюры</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Число</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Сумма</translation>
    </message>
    <message>
        <source>The answers may be wrong</source>
        <translation>Ответы могут быть неверны</translation>
    </message>
    <message>
        <source>What became of each note, and why</source>
        <translation>Что стало с каждой купюрой и почему</translation>
    </message>
    <message>
        <source>None: every note is accepted.</source>
        <translation>Нет: принимается любая купюра.</translation>
    </message>
    <message>
        <source>Filters in force</source>
        <translation>Действующие фильтры</translation>
    </message>
    <message>
        <source>idling</source>
        <translation>ожидание</translation>
    </message>
    <message>
        <source>accepting</source>
        <translation>приём</translation>
    </message>
    <message>
        <source>accepted</source>
        <translation>принята</translation>
    </message>
    <message>
        <source>rejected</source>
        <translation>отклонена</translation>
    </message>
    <message>
        <source>stacking</source>
        <translation>укладка</translation>
    </message>
    <message>
        <source>stacked</source>
        <translation>уложена</translation>
    </message>
    <message>
        <source>returning</source>
        <translation>возврат</translation>
    </message>
    <message>
        <source>jammed</source>
        <translation>замятие</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>занято</translation>
    </message>
    <message>
        <source>updating</source>
        <translation>обновление</translation>
    </message>
    <message>
        <source>dispensing</source>
        <translation>выдача</translation>
    </message>
    <message>
        <source>dispensed</source>
        <translation>выдано</translation>
    </message>
    <message>
        <source>floating</source>
        <translation>размен</translation>
    </message>
    <message>
        <source>floated</source>
        <translation>разменяно</translation>
    </message>
    <message>
        <source>emptying</source>
        <translation>выгрузка</translation>
    </message>
    <message>
        <source>emptied</source>
        <translation>выгружено</translation>
    </message>
    <message>
        <source>unknown state</source>
        <translation>неизвестное состояние</translation>
    </message>
    <message>
        <source>accepting a note</source>
        <translation>принимает купюру</translation>
    </message>
    <message>
        <source>keeping it</source>
        <translation>оставляет её</translation>
    </message>
    <message>
        <source>giving it back</source>
        <translation>отдаёт её</translation>
    </message>
    <message>
        <source>paying out</source>
        <translation>выдаёт</translation>
    </message>
    <message>
        <source>jam, error or what else was the matter</source>
        <translation>замятие, ошибка или что ещё было не так</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>выключено</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>не на связи</translation>
    </message>
    <message>
        <source>halted</source>
        <translation>остановлено</translation>
    </message>
    <message>
        <source>critical error</source>
        <translation>крит. ошибка</translation>
    </message>
    <message>
        <source>stacker missing</source>
        <translation>нет стекера</translation>
    </message>
    <message>
        <source>stacker full</source>
        <translation>стекер полон</translation>
    </message>
    <message>
        <source>Session %1 from line %2 to line %3</source>
        <translation>Сеанс %1, строки с %2 по %3</translation>
    </message>
    <message>
        <source>time</source>
        <translation>время</translation>
    </message>
    <message>
        <source>line</source>
        <translation>строка</translation>
    </message>
    <message>
        <source>notes</source>
        <translation>купюры</translation>
    </message>
    <message>
        <source>state</source>
        <translation>состояние</translation>
    </message>
    <message>
        <source>session sum</source>
        <translation>сумма сеанса</translation>
    </message>
    <message>
        <source>limit %1</source>
        <translation>предел %1</translation>
    </message>
    <message>
        <source>expected a list of %1</source>
        <translation>ожидается список (%1)</translation>
    </message>
    <message>
        <source>not JSON: %1 (column %2)</source>
        <translation>не JSON: %1 (позиция %2)</translation>
    </message>
    <message>
        <source>Pay by card</source>
        <translation>Оплатите картой</translation>
    </message>
    <message>
        <source>Out of service</source>
        <translation>Не работает</translation>
    </message>
    <message>
        <source>Checking a note of %1...</source>
        <translation>Проверяется купюра %1...</translation>
    </message>
    <message>
        <source>Checking a coin of %1...</source>
        <translation>Проверяется монета %1...</translation>
    </message>
    <message>
        <source>A note of %1 was accepted.</source>
        <translation>Купюра %1 принята.</translation>
    </message>
    <message>
        <source>A coin of %1 was accepted.</source>
        <translation>Монета %1 принята.</translation>
    </message>
    <message>
        <source>Your note was not recognised. Please try another one.</source>
        <translation>Купюра не распознана. Попробуйте другую.</translation>
    </message>
    <message>
        <source>Your coin was not recognised. Please try another one.</source>
        <translation>Монета не распознана. Попробуйте другую.</translation>
    </message>
    <message>
        <source>Your note of %1 was returned. Please take it.</source>
        <translation>Ваша купюра %1 возвращена. Заберите&#xa0;её.</translation>
    </message>
    <message>
        <source>Your coin of %1 was returned. Please take it.</source>
        <translation>Ваша монета %1 возвращена. Заберите&#xa0;её.</translation>
    </message>
    <message>
        <source>Notes are not accepted at the moment. It comes back to you.</source>
        <translation>Купюры сейчас не принимаются. Купюра вернётся к вам.</translation>
    </message>
    <message>
        <source>Coins are not accepted at the moment. It comes back to you.</source>
        <translation>Монеты сейчас не принимаются. Монета вернётся к вам.</translation>
    </message>
    <message>
        <source>After several rejections no note of %1 is accepted. It comes back to you; please try another value.</source>
        <translation>После нескольких отказов купюры %1 не принимаются. Купюра вернётся к вам; попробуйте другой номинал.</translation>
    </message>
    <message>
        <source>After several rejections no coin of %1 is accepted. It comes back to you; please try another value.</source>
        <translation>После нескольких отказов монеты %1 не принимаются. Монета вернётся к вам; попробуйте другой номинал.</translation>
    </message>
    <message>
        <source>No more notes of %1 are accepted in this payment. It comes back to you.</source>
        <translation>Купюры %1 в этом платеже больше не принимаются. Купюра вернётся к вам.</translation>
    </message>
    <message>
        <source>No more coins of %1 are accepted in this payment. It comes back to you.</source>
        <translation>Монеты %1 в этом платеже больше не принимаются. Монета вернётся к вам.</translation>
    </message>
    <message>
        <source>This note would pass the limit of %2. It comes back to you.</source>
        <translation>С этой купюрой сумма превысит предел %2. Купюра вернётся к вам.</translation>
    </message>
    <message>
        <source>This coin would pass the limit of %2. It comes back to you.</source>
        <translation>С этой монетой сумма превысит предел %2. Монета вернётся к вам.</translation>
    </message>
    <message>
        <source>This note cannot be accepted. It comes back to you.</source>
        <translation>Эту купюру принять нельзя. Она вернётся к вам.</translation>
    </message>
    <message>
        <source>This coin cannot be accepted. It comes back to you.</source>
        <translation>Эту монету принять нельзя. Она вернётся к вам.</translation>
    </message>
    <message>
        <source>The device is offline.</source>
        <translation>Устройство не на связи.</translation>
    </message>
    <message>
        <source>Accepting</source>
        <translation>Приём</translation>
    </message>
    <message>
        <source>Stacker</source>
        <translation>Стекер</translation>
    </message>
    <message>
        <source>Stacker full</source>
        <translation>Стекер полон</translation>
    </message>
    <message>
        <source>Critical error</source>
        <translation>Критическая ошибка</translation>
    </message>
    <message>
        <source>Halted</source>
        <translation>Остановлено</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Не на связи</translation>
    </message>
    <message>
        <source>The service does not answer.</source>
        <translation>Служба не отвечает.</translation>
    </message>
    <message>
        <source>The service&apos;s state cannot be read: %1.</source>
        <translation>Состояние службы прочесть нельзя: %1.</translation>
    </message>
    <message>
        <source>The device failed with your note of %1 in it. Please call the staff.</source>
        <translation>Устройство отказало, купюра %1 осталась в нём. Позовите сотрудника.</translation>
    </message>
    <message>
        <source>The device failed with your coin of %1 in it. Please call the staff.</source>
        <translation>Устройство отказало, монета %1 осталась в нём. Позовите сотрудника.</translation>
    </message>
    <message>
        <source>The broker refuses a subscription.</source>
        <translation>Брокер отказал в подписке.</translation>
    </message>
    <message>
        <source>Connected to %1:%2.</source>
        <translation>Соединение с %1:%2 установлено.</translation>
    </message>
    <message>
        <source>broker &quot;%1&quot;: expected HOST or HOST:PORT</source>
        <translation>брокер «%1»: ожидается HOST или HOST:PORT</translation>
    </message>
    <message>
        <source>%1:1: expected USER:PASSWORD</source>
        <translation>%1:1: ожидается USER:PASSWORD</translation>
    </message>
    <message>
        <source>a client certificate and its key go together</source>
        <translation>сертификат клиента и его ключ задаются вместе</translation>
    </message>
    <message>
        <source>a client certificate needs the certificates to trust</source>
        <translation>к сертификату клиента нужны сертификаты, которым доверять</translation>
    </message>
    <message>
        <source>a broker needs libmosquitto: %1</source>
        <translation>для брокера нужна libmosquitto: %1</translation>
    </message>
    <message>
        <source>expected a kiosk&apos;s summary</source>
        <translation>ожидается сводка терминала</translation>
    </message>
    <message>
        <source>expected UTF-8</source>
        <translation>ожидается UTF-8</translation>
    </message>
    <message>
        <source>The device does not work; its state: %1.</source>
        <translation>Устройство не работает; его состояние: %1.</translation>
    </message>
    <message>
        <source>No connection to %1:%2 (%3)</source>
        <translation>Нет соединения с %1:%2 (%3)</translation>
    </message>
    <message>
        <source>%1; next attempt in %2 s.</source>
        <translation>%1; следующая попытка через %2 с.</translation>
    </message>
    <message numerus="yes">
        <source>The broker had no room for %n messages and dropped them. With mosquitto, max_queued_messages sets the room.</source>
        <translation>
            <numerusform>У брокера не нашлось места для %n сообщения, и он его отбросил. В mosquitto место задаёт max_queued_messages.</numerusform>
            <numerusform>У брокера не нашлось места для %n сообщений, и он их отбросил. В mosquitto место задаёт max_queued_messages.</numerusform>
            <numerusform>У брокера не нашлось места для %n сообщений, и он их отбросил. В mosquitto место задаёт max_queued_messages.</numerusform>
        </translation>
    </message>
    <message>
        <source>It is not known whether the device works; its state: %1.</source>
        <translation>Неизвестно, работает ли устройство; его состояние: %1.</translation>
    </message>
    <message>
        <source>expected an ISO 8601 time or milliseconds since 1970, in a year from 1 to 9999</source>
        <translation>ожидается время ISO 8601 или миллисекунды с 1970 года, год от 1 до 9999</translation>
    </message>
    <message>
        <source>NUL byte</source>
        <translation>нулевой байт</translation>
    </message>
    <message>
        <source>more than %1 blank lines</source>
        <translation>больше %1 пустых строк подряд</translation>
    </message>
    <message>
        <source>%1 refused.</source>
        <translation>%1 не принята фильтрами.</translation>
    </message>
    <message>
        <source>%1 taken.</source>
        <translation>%1 принята.</translation>
    </message>
    <message>
        <source>%1 stuck in the device, neither taken nor returned.</source>
        <translation>%1 застряла в устройстве: не принята и не возвращена.</translation>
    </message>
    <message>
        <source>%1 rejected.</source>
        <translation>%1 отклонена устройством.</translation>
    </message>
    <message>
        <source>%1 returned.</source>
        <translation>%1 возвращена.</translation>
    </message>
    <message>
        <source>%1: the log does not say what became of it.</source>
        <translation>%1: что с ней стало, из журнала не видно.</translation>
    </message>
    <message>
        <source>coin of unknown value</source>
        <translation>монета неизвестного номинала</translation>
    </message>
    <message>
        <source>note of unknown value</source>
        <translation>купюра неизвестного номинала</translation>
    </message>
    <message>
        <source>It got stuck in the device (line %1).</source>
        <translation>Она застряла в устройстве (строка %1).</translation>
    </message>
    <message>
        <source>It was last seen on its way through the device (line %1).</source>
        <translation>В последний раз она была на пути через устройство (строка %1).</translation>
    </message>
    <message>
        <source>It was credited all the same (line %1).</source>
        <translation>Она всё же была зачислена (строка %1).</translation>
    </message>
    <message>
        <source>It was not credited.</source>
        <translation>Она не была зачислена.</translation>
    </message>
    <message>
        <source>By the device itself.</source>
        <translation>Решило само устройство.</translation>
    </message>
    <message>
        <source>Stuck in the device</source>
        <translation>Застряли в устройстве</translation>
    </message>
    <message>
        <source>its value came too late to ask the filters about it</source>
        <translation>номинал стал известен слишком поздно, чтобы спросить о ней фильтры</translation>
    </message>
    <message numerus="yes">
        <source>%n stuck</source>
        <translation>
            <numerusform>застряло: %n</numerusform>
            <numerusform>застряло: %n</numerusform>
            <numerusform>застряло: %n</numerusform>
        </translation>
    </message>
    <message>
        <source> (nearest known: %1)</source>
        <translation> (похоже на %1)</translation>
    </message>
    <message>
        <source>unknown setting &quot;%1&quot;</source>
        <translation>неизвестная настройка &quot;%1&quot;</translation>
    </message>
    <message>
        <source>has &quot;%1&quot; more than once: which one counts is not certain</source>
        <translation>содержит &quot;%1&quot; несколько раз: какое из них действует, неизвестно</translation>
    </message>
    <message>
        <source>is ignored</source>
        <translation>не учитывается</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no model of the catalogue</source>
        <translation>&quot;%1&quot; нет среди моделей каталога</translation>
    </message>
    <message>
        <source>a device of this model has no &quot;%1&quot;</source>
        <translation>у устройства этой модели нет &quot;%1&quot;</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>стандартный вывод</translation>
    </message>
    <message>
        <source>stuck in the device</source>
        <translation>застряла в устройстве</translation>
    </message>
    <message>
        <source>its value became %1 in line %2</source>
        <translation>её номинал в строке %2 стал %1</translation>
    </message>
    <message>
        <source>what lay in it when the log began is not known</source>
        <translation>что в ней было в начале журнала, неизвестно</translation>
    </message>
    <message>
        <source>taken to have come back empty</source>
        <translation>считается, что она вернулась пустой</translation>
    </message>
    <message>
        <source>the registry does not tell of it any more</source>
        <translation>реестр об этом больше не сообщает</translation>
    </message>
    <message numerus="yes">
        <source>%n pieces were filled in</source>
        <translation>
            <numerusform>загружена %n шт.</numerusform>
            <numerusform>загружены %n шт.</numerusform>
            <numerusform>загружено %n шт.</numerusform>
        </translation>
    </message>
    <message>
        <source>lines were skipped since it was told</source>
        <translation>после последних сведений об этом пропущены строки</translation>
    </message>
    <message>
        <source>expected cassette, channel or reject</source>
        <translation>ожидается cassette, channel или reject</translation>
    </message>
    <message>
        <source>unknown column &quot;%1&quot;</source>
        <translation>неизвестный столбец &quot;%1&quot;</translation>
    </message>
    <message>
        <source>column &quot;%1&quot; stands twice</source>
        <translation>столбец &quot;%1&quot; задан дважды</translation>
    </message>
    <message>
        <source>column &quot;%1&quot; is missing</source>
        <translation>нет столбца &quot;%1&quot;</translation>
    </message>
    <message>
        <source>a quotation mark is not closed</source>
        <translation>кавычка не закрыта</translation>
    </message>
    <message>
        <source>expected %1 cells as in the header, not %2</source>
        <translation>ожидается ячеек: %1, как в заголовке, а не %2</translation>
    </message>
    <message>
        <source>expected a list</source>
        <translation>ожидается список</translation>
    </message>
    <message>
        <source>%1: element %2</source>
        <translation>%1: элемент %2</translation>
    </message>
    <message>
        <source>expected texts and numbers</source>
        <translation>ожидаются тексты и числа</translation>
    </message>
    <message>
        <source>the logs have no such device or period</source>
        <translation>в журналах нет такого устройства или периода</translation>
    </message>
    <message>
        <source>several threads drive the device: say which in a column &quot;thread&quot;</source>
        <translation>устройством управляет несколько потоков: укажите нужный в столбце &quot;thread&quot;</translation>
    </message>
    <message>
        <source>right</source>
        <translation>верно</translation>
    </message>
    <message>
        <source>%1 short</source>
        <translation>недостача %1</translation>
    </message>
    <message>
        <source>%1 over</source>
        <translation>излишек %1</translation>
    </message>
    <message>
        <source>nothing is counted</source>
        <translation>ничего не пересчитано</translation>
    </message>
    <message>
        <source>several rows fit: say which in a column &quot;channel&quot; or &quot;currency&quot;</source>
        <translation>подходит несколько строк: укажите нужную в столбце &quot;channel&quot; или &quot;currency&quot;</translation>
    </message>
    <message>
        <source>the device has no such place</source>
        <translation>у устройства нет такого места</translation>
    </message>
    <message>
        <source>What the cassette held, from time to time</source>
        <translation>Что было в кассете, по времени</translation>
    </message>
    <message>
        <source>may be</source>
        <translation>возможно</translation>
    </message>
    <message>
        <source>at least</source>
        <translation>не меньше</translation>
    </message>
    <message>
        <source>Period %1, %2: %3 taken out</source>
        <translation>Период %1, %2: изъято %3</translation>
    </message>
    <message>
        <source>In the end: %1</source>
        <translation>В конце: %1</translation>
    </message>
    <message>
        <source>a log could not be read</source>
        <translation>один из журналов не удалось прочесть</translation>
    </message>
    <message>
        <source>%1:%2 to %3:%4</source>
        <translation>с %1:%2 по %3:%4</translation>
    </message>
    <message>
        <source>taken out with %1</source>
        <translation>изъята, в ней %1</translation>
    </message>
    <message>
        <source>Of money the log tells nothing.</source>
        <translation>О деньгах в журнале ничего нет.</translation>
    </message>
    <message>
        <source>in all</source>
        <translation>всего</translation>
    </message>
    <message>
        <source>as of %1</source>
        <translation>на момент: %1</translation>
    </message>
    <message>
        <source>What lies where</source>
        <translation>Что где лежит</translation>
    </message>
    <message>
        <source>Why</source>
        <translation>Почему</translation>
    </message>
    <message>
        <source>in the cassette: %1</source>
        <translation>в кассете: %1</translation>
    </message>
    <message>
        <source>taken out: %1</source>
        <translation>изъято: %1</translation>
    </message>
    <message>
        <source>The device says of its cash: %1</source>
        <translation>О своих деньгах устройство сообщает: %1</translation>
    </message>
    <message>
        <source>Period %1</source>
        <translation>Период %1</translation>
    </message>
    <message>
        <source>since %1</source>
        <translation>начало: %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>device %1, thread %2</source>
        <translation>устройство %1, поток %2</translation>
    </message>
    <message>
        <source>What the cassette held</source>
        <translation>Что было в кассете</translation>
    </message>
    <message>
        <source>The curve adds up the face values of all currencies.</source>
        <translation>Кривая складывает номиналы всех валют.</translation>
    </message>
    <message>
        <source>What does not add up</source>
        <translation>Что не сходится</translation>
    </message>
    <message>
        <source>Kiosk</source>
        <translation>Терминал</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Место</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Номинал</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Период</translation>
    </message>
    <message>
        <source>Expected</source>
        <translation>Ожидается</translation>
    </message>
    <message>
        <source>Counted</source>
        <translation>Пересчитано</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Разница</translation>
    </message>
    <message>
        <source>nothing in the logs</source>
        <translation>в журналах ничего нет</translation>
    </message>
    <message>
        <source>%1, %2 of %3: %4. What can explain it:</source>
        <translation>%1, номинал %3, %2: %4. Чем это можно объяснить:</translation>
    </message>
    <message>
        <source>pieces</source>
        <translation>шт.</translation>
    </message>
    <message>
        <source>What was counted</source>
        <translation>Результаты пересчёта</translation>
    </message>
    <message>
        <source>Everything adds up.</source>
        <translation>Всё сходится.</translation>
    </message>
    <message numerus="yes">
        <source>%n things do not add up.</source>
        <translation>
            <numerusform>Найдено %n противоречие.</numerusform>
            <numerusform>Найдены %n противоречия.</numerusform>
            <numerusform>Найдено %n противоречий.</numerusform>
        </translation>
    </message>
    <message>
        <source>Everything that was counted is right.</source>
        <translation>Всё, что пересчитано, верно.</translation>
    </message>
    <message>
        <source>Of %1 counts %2 are not right.</source>
        <translation>Не сходится результатов пересчёта: %2 из %1.</translation>
    </message>
    <message>
        <source>certain to be there</source>
        <translation>есть наверняка</translation>
    </message>
    <message>
        <source>may be there besides</source>
        <translation>может быть ещё</translation>
    </message>
    <message>
        <source>at least so much; the log does not tell how much more</source>
        <translation>не меньше этого; сколько ещё, из журнала не видно</translation>
    </message>
    <message>
        <source>the cassette is taken out, with so much</source>
        <translation>кассета изъята с такой суммой</translation>
    </message>
    <message>
        <source>Where is the money?</source>
        <translation>Где деньги?</translation>
    </message>
    <message>
        <source>How the logs were read</source>
        <translation>Как прочитаны журналы</translation>
    </message>
    <message numerus="yes">
        <source>%n pieces got stuck on their way</source>
        <translation>
            <numerusform>%n шт. застряла в пути</numerusform>
            <numerusform>%n шт. застряли в пути</numerusform>
            <numerusform>%n шт. застряло в пути</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pieces are on their way</source>
        <translation>
            <numerusform>%n шт. в пути</numerusform>
            <numerusform>%n шт. в пути</numerusform>
            <numerusform>%n шт. в пути</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>of %n pieces the log does not say what became of them</source>
        <translation>
            <numerusform>что стало с %n шт., из журнала не видно</numerusform>
            <numerusform>что стало с %n шт., из журнала не видно</numerusform>
            <numerusform>что стало с %n шт., из журнала не видно</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>lines were skipped while %n pieces were on their way</source>
        <translation>
            <numerusform>пропущены строки, пока %n шт. была в пути</numerusform>
            <numerusform>пропущены строки, пока %n шт. были в пути</numerusform>
            <numerusform>пропущены строки, пока %n шт. было в пути</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the value of %n pieces changed while they were on their way</source>
        <translation>
            <numerusform>номинал %n шт. изменился в пути</numerusform>
            <numerusform>номинал %n шт. изменился в пути</numerusform>
            <numerusform>номинал %n шт. изменился в пути</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pieces of unknown value were taken</source>
        <translation>
            <numerusform>принята %n шт. неизвестного номинала</numerusform>
            <numerusform>приняты %n шт. неизвестного номинала</numerusform>
            <numerusform>принято %n шт. неизвестного номинала</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>of %n pieces the registry does not tell whether they are in a channel</source>
        <translation>
            <numerusform>находится ли %n шт. в канале, из реестра не видно</numerusform>
            <numerusform>находится ли %n шт. в канале, из реестра не видно</numerusform>
            <numerusform>находится ли %n шт. в канале, из реестра не видно</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>by the device&apos;s counter %n pieces are missing from the log</source>
        <translation>
            <numerusform>по счётчику устройства в журнале не хватает %n шт.</numerusform>
            <numerusform>по счётчику устройства в журнале не хватает %n шт.</numerusform>
            <numerusform>по счётчику устройства в журнале не хватает %n шт.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n credits came without a piece</source>
        <translation>
            <numerusform>%n зачисление без купюры или монеты</numerusform>
            <numerusform>%n зачисления без купюры или монеты</numerusform>
            <numerusform>%n зачислений без купюры или монеты</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lines were skipped</source>
        <translation>
            <numerusform>пропущена %n строка</numerusform>
            <numerusform>пропущены %n строки</numerusform>
            <numerusform>пропущено %n строк</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>lines were skipped in which the cassette may have been emptied</source>
        <translation>
            <numerusform>пропущены строки, в которых кассету могли опорожнить</numerusform>
            <numerusform>пропущены строки, в которых кассету могли опорожнить</numerusform>
            <numerusform>пропущены строки, в которых кассету могли опорожнить</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the registry was told for the first time while channels were floated or emptied</source>
        <translation>
            <numerusform>реестр впервые сообщён во время размена или выгрузки каналов</numerusform>
            <numerusform>реестр впервые сообщён во время размена или выгрузки каналов</numerusform>
            <numerusform>реестр впервые сообщён во время размена или выгрузки каналов</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pieces left a channel, and the log does not say why</source>
        <translation>
            <numerusform>%n шт. ушла из канала, почему - из журнала не видно</numerusform>
            <numerusform>%n шт. ушли из канала, почему - из журнала не видно</numerusform>
            <numerusform>%n шт. ушло из канала, почему - из журнала не видно</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pieces came or went while the cassette was out, and are not counted here</source>
        <translation>
            <numerusform>%n шт. пришла или ушла, пока кассета была изъята; здесь она не учтена</numerusform>
            <numerusform>%n шт. пришли или ушли, пока кассета была изъята; здесь они не учтены</numerusform>
            <numerusform>%n шт. пришло или ушло, пока кассета была изъята; здесь они не учтены</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the log does not tell the end of a payout, a float or an emptying, %n pieces may be on their way</source>
        <translation>
            <numerusform>в журнале нет конца выдачи, размена или выгрузки, %n шт. может быть в пути</numerusform>
            <numerusform>в журнале нет конца выдачи, размена или выгрузки, %n шт. могут быть в пути</numerusform>
            <numerusform>в журнале нет конца выдачи, размена или выгрузки, %n шт. может быть в пути</numerusform>
        </translation>
    </message>
    <message>
        <source>cassette</source>
        <translation>кассета</translation>
    </message>
    <message>
        <source>channel %1</source>
        <translation>канал %1</translation>
    </message>
    <message>
        <source>reject</source>
        <translation>отбраковка</translation>
    </message>
    <message>
        <source>Currency</source>
        <translation>Валюта</translation>
    </message>
    <message>
        <source>Opening</source>
        <translation>Начало</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Приход</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Расход</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>Перенос</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Остаток</translation>
    </message>
    <message>
        <source>Sum now</source>
        <translation>Сумма</translation>
    </message>
    <message>
        <source>Kiosk %1: %2</source>
        <translation>Терминал %1: %2</translation>
    </message>
    <message>
        <source>channels</source>
        <translation>каналы</translation>
    </message>
    <message>
        <source>the end</source>
        <translation>конец журнала</translation>
    </message>
    <message>
        <source>no coin until then</source>
        <translation>до этого ни одной монеты</translation>
    </message>
    <message>
        <source>no note until then</source>
        <translation>до этого ни одной купюры</translation>
    </message>
    <message>
        <source>last coin %1</source>
        <translation>последняя монета - %1</translation>
    </message>
    <message>
        <source>last note %1</source>
        <translation>последняя купюра - %1</translation>
    </message>
    <message>
        <source>%1: from %2 to %3: %4; %5</source>
        <extracomment>&quot;DEVICE: from 10:05:12 (line 3) to the end: disabled, stacker full; last note ...&quot;</extracomment>
        <translation>%1: %2 – %3: %4; %5</translation>
    </message>
    <message>
        <source>taken and not credited</source>
        <translation>принята, но не зачислена</translation>
    </message>
    <message>
        <source>credited with another amount</source>
        <translation>зачислена другая сумма</translation>
    </message>
    <message>
        <source>credited and not taken</source>
        <translation>зачислена, но не принята</translation>
    </message>
    <message>
        <source>credited without a note</source>
        <translation>зачислено без купюры</translation>
    </message>
    <message>
        <source>less credit within a session</source>
        <translation>сумма в течение сеанса уменьшилась</translation>
    </message>
    <message>
        <source>paid another amount than left the channels</source>
        <translation>выдано не столько, сколько ушло из каналов</translation>
    </message>
    <message>
        <source>a payout without an end</source>
        <translation>выдача без завершения</translation>
    </message>
    <message>
        <source>a channel&apos;s content changed for no reason</source>
        <translation>содержимое канала изменилось без причины</translation>
    </message>
    <message>
        <source>notes that the log does not have</source>
        <translation>купюры, которых нет в журнале</translation>
    </message>
    <message>
        <source>The session&apos;s sum rose by %1 while the device accepted, without a note. The value of one would clear this.</source>
        <translation>Сумма сеанса выросла на %1 во время приёма, без купюры. Противоречие снимет номинал купюры.</translation>
    </message>
    <message>
        <source>The session&apos;s sum rose by %1 for a %2 that was not taken. That it was stacked would clear this.</source>
        <translation>Сумма сеанса выросла на %1, но %2 не принята. Противоречие снимется, если она уложена.</translation>
    </message>
    <message>
        <source>A %1 was taken, and the session&apos;s sum did not rise. That it rises before the next note, payout or session would clear this.</source>
        <translation>Принята %1, а сумма сеанса не выросла. Противоречие снимется, если сумма вырастет до следующей купюры, выдачи или сеанса.</translation>
    </message>
    <message>
        <source>The session&apos;s sum rose by %1 for a %2. That it rises by %3 in all would clear this.</source>
        <translation>Сумма сеанса выросла на %1, а принята %2. Противоречие снимется, если всего сумма вырастет на %3.</translation>
    </message>
    <message>
        <source>A payout began, and the log does not tell its end. &quot;dispensed&quot; before the next note, payout or session would clear this.</source>
        <translation>Выдача началась, а её конца в журнале нет. Противоречие снимет &quot;dispensed&quot; до следующей купюры, выдачи или сеанса.</translation>
    </message>
    <message>
        <source>%1 was paid, and %2 left the channels without being rejected. That both are the same before the next note, payout or session would clear this.</source>
        <translation>Выдано %1, а из каналов без отбраковки ушло %2. Противоречие снимется, если эти суммы сравняются до следующей купюры, выдачи или сеанса.</translation>
    </message>
    <message>
        <source>The session&apos;s sum rose by %1 without a note. A note that was offered before, with nothing between, would clear this.</source>
        <translation>Сумма сеанса выросла на %1 без купюры. Противоречие снимет купюра, предложенная перед этим, если между ними ничего нет.</translation>
    </message>
    <message>
        <source>The session&apos;s sum fell from %1 to %2. The start of a session before this line would clear this.</source>
        <translation>Сумма сеанса уменьшилась с %1 до %2. Противоречие снимет начало сеанса перед этой строкой.</translation>
    </message>
    <message>
        <source>The registry changed: %1. A payout, a float or an emptying that began before, with nothing between, would clear this.</source>
        <translation>Реестр изменился: %1. Противоречие снимет выдача, размен или выгрузка, начатая перед этим, если между ними ничего нет.</translation>
    </message>
    <message numerus="yes">
        <source>The device counted %1, and the log has %2 of them: %n notes are missing from the log. Their lines would clear this.</source>
        <translation>
            <numerusform>Устройство насчитало %1, в журнале из них %2: не хватает %n купюры. Противоречие снимут её строки.</numerusform>
            <numerusform>Устройство насчитало %1, в журнале из них %2: не хватает %n купюр. Противоречие снимут их строки.</numerusform>
            <numerusform>Устройство насчитало %1, в журнале из них %2: не хватает %n купюр. Противоречие снимут их строки.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1: %2.</translation>
    </message>
    <message>
        <source>channel %1 (%2)</source>
        <translation>канал %1 (%2)</translation>
    </message>
    <message>
        <source>%1 went from %2 to %3</source>
        <translation>%1 с %2 до %3</translation>
    </message>
    <message>
        <source>rejects of %1 went from %2 to %3</source>
        <translation>отбраковано (%1) с %2 до %3</translation>
    </message>
    <message numerus="yes">
        <source>%n that do not add up</source>
        <translation>
            <numerusform>не сходится: %n</numerusform>
            <numerusform>не сходится: %n</numerusform>
            <numerusform>не сходится: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>the log is of kiosk &quot;%1&quot; so far, and of &quot;%2&quot; here; velmo cash tells kiosks apart</source>
        <translation>до сих пор это был журнал терминала &quot;%1&quot;, а здесь - &quot;%2&quot;; терминалы различает velmo cash</translation>
    </message>
    <message>
        <source>Does not add up</source>
        <translation>Не сходится</translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation>от %1</translation>
    </message>
    <message>
        <source>&quot;kiosk&quot;: expected a name</source>
        <translation>&quot;kiosk&quot;: ожидается имя</translation>
    </message>
    <message>
        <source>does not add up</source>
        <translation>не сходится</translation>
    </message>
    <message>
        <source>%1 may be thousands or a decimal: expected a whole number without a comma or point</source>
        <translation>%1 может означать тысячи или дробь: ожидается целое число без запятой и точки</translation>
    </message>
    <message>
        <source>In the logs everything adds up.</source>
        <translation>В журналах всё сходится.</translation>
    </message>
    <message numerus="yes">
        <source>%n rows were not counted.</source>
        <translation>
            <numerusform>Не пересчитана %n строка.</numerusform>
            <numerusform>Не пересчитаны %n строки.</numerusform>
            <numerusform>Не пересчитано %n строк.</numerusform>
        </translation>
    </message>
    <message>
        <source>Devices are left out: the broker has no room for all.</source>
        <translation>Часть устройств опущена: брокер не вмещает все.</translation>
    </message>
    <message>
        <source>topic &quot;%1&quot;: expected one or two levels that are + or %2, and no more than one that is %3</source>
        <translation>тема «%1»: ожидается один или два уровня + или %2 и не больше одного уровня %3</translation>
    </message>
    <message>
        <source>part &quot;%1&quot;: expected one of so many, as 2/4</source>
        <translation>часть «%1»: ожидается номер и число частей, например 2/4</translation>
    </message>
    <message>
        <source>Qt&apos;s driver %1 is not installed</source>
        <translation>драйвер Qt %1 не установлен</translation>
    </message>
    <message>
        <source>there is no history in it</source>
        <translation>истории там нет</translation>
    </message>
    <message>
        <source>expected a file</source>
        <translation>ожидается файл</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>такого файла нет</translation>
    </message>
    <message>
        <source>expected postgresql://user@host:port/database</source>
        <translation>ожидается postgresql://user@host:port/database</translation>
    </message>
    <message>
        <source>is of version %1, which is later than this program&apos;s %2</source>
        <translation>версия %1 новее версии этой программы, %2</translation>
    </message>
    <message>
        <source>is the database of something else</source>
        <translation>это база данных чего-то другого</translation>
    </message>
    <message>
        <source>The history&apos;s database is back.</source>
        <translation>База данных истории снова доступна.</translation>
    </message>
    <message>
        <source>another worker writes of the same kiosks</source>
        <translation>о тех же терминалах пишет другой обработчик</translation>
    </message>
    <message>
        <source>The cassette has not been full yet: how much it holds is not known.</source>
        <translation>Кассета ещё не была полна: сколько она вмещает, неизвестно.</translation>
    </message>
    <message>
        <source>Its level is known for less than three days.</source>
        <translation>Уровень известен меньше трёх дней.</translation>
    </message>
    <message>
        <source>Nothing was inserted in the last two weeks.</source>
        <translation>За последние две недели ничего не внесено.</translation>
    </message>
    <message>
        <source>Its level has not fallen in the last two weeks.</source>
        <translation>За последние две недели уровень не снижался.</translation>
    </message>
    <message>
        <source>The days differ too much.</source>
        <translation>Дни слишком непохожи друг на друга.</translation>
    </message>
    <message>
        <source>No worker writes to the history: what lasts in it may be over.</source>
        <translation>Ни один обработчик не пишет историю: то, что в ней ещё длится, могло закончиться.</translation>
    </message>
    <message>
        <source>the file was removed or replaced</source>
        <translation>файл удалён или заменён</translation>
    </message>
    <message>
        <source>The kiosk has been silent for more than a day.</source>
        <translation>Терминал молчит больше суток.</translation>
    </message>
    <message>
        <source>the number of an incident: expected a text</source>
        <translation>номер инцидента: ожидается текст</translation>
    </message>
    <message>
        <source>It is not known what became of your note of %1. Please call the staff.</source>
        <translation>Неизвестно, что стало с вашей купюрой %1. Позовите сотрудника.</translation>
    </message>
    <message>
        <source>It is not known what became of your coin of %1. Please call the staff.</source>
        <translation>Неизвестно, что стало с вашей монетой %1. Позовите сотрудника.</translation>
    </message>
    <message>
        <source>The device failed with your note in it. Please call the staff.</source>
        <translation>Устройство отказало, ваша купюра осталась в нём. Позовите сотрудника.</translation>
    </message>
    <message>
        <source>The device failed with your coin in it. Please call the staff.</source>
        <translation>Устройство отказало, ваша монета осталась в нём. Позовите сотрудника.</translation>
    </message>
    <message>
        <source>The PIN given has to have %1 to %2 digits.</source>
        <translation>Заданный ПИН-код должен состоять из %1–%2 цифр.</translation>
    </message>
    <message>
        <source>No PIN is given.</source>
        <translation>ПИН-код не задан.</translation>
    </message>
    <message>
        <source>%1: is not a file</source>
        <translation>%1: это не файл</translation>
    </message>
    <message>
        <source>%1: line 1: expected a PIN of %2 to %3 digits</source>
        <translation>%1: строка 1: ожидается ПИН-код из %2–%3 цифр</translation>
    </message>
    <message>
        <source>The service has told nothing for %1 s.</source>
        <translation>Служба ничего не сообщает уже %1 с.</translation>
    </message>
    <message>
        <source>Checking your note...</source>
        <translation>Проверяется ваша купюра...</translation>
    </message>
    <message>
        <source>Checking your coin...</source>
        <translation>Проверяется ваша монета...</translation>
    </message>
    <message>
        <source>It is not known what became of your note. Please call the staff.</source>
        <translation>Неизвестно, что стало с вашей купюрой. Позовите сотрудника.</translation>
    </message>
    <message>
        <source>It is not known what became of your coin. Please call the staff.</source>
        <translation>Неизвестно, что стало с вашей монетой. Позовите сотрудника.</translation>
    </message>
    <message>
        <source>Money of a customer is stuck.</source>
        <translation>Застряли деньги клиента.</translation>
    </message>
    <message>
        <source>It is not known what became of a customer&apos;s money.</source>
        <translation>Неизвестно, что стало с деньгами клиента.</translation>
    </message>
    <message>
        <source>Money of a customer is stuck: %1.</source>
        <translation>Застряли деньги клиента: %1.</translation>
    </message>
    <message>
        <source>It is not known what became of a customer&apos;s money: %1.</source>
        <translation>Неизвестно, что стало с деньгами клиента: %1.</translation>
    </message>
    <message>
        <source>no translations for language &quot;%1&quot;; there are: %2</source>
        <translation>нет переводов для языка «%1»; есть: %2</translation>
    </message>
    <message>
        <source>the filter cannot hold %1 attempts (&quot;denom&quot; %2): it takes %3</source>
        <translation>фильтр не вмещает число попыток %1 (&quot;denom&quot; %2): возьмёт %3</translation>
    </message>
    <message>
        <source>the filter cannot hold the sum %1: it takes %2</source>
        <translation>фильтр не вмещает сумму %1: возьмёт %2</translation>
    </message>
    <message>
        <source>Its level has not been told for more than a day.</source>
        <translation>Остаток не сообщался больше суток.</translation>
    </message>
</context>
</TS>
