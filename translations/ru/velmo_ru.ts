<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en">
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Arguments:</source>
        <translation>Аргументы:</translation>
    </message>
    <message>
        <source>Displays help including Qt specific options.</source>
        <translation>Показать эту справку с параметрами Qt.</translation>
    </message>
    <message>
        <source>Displays help on commandline options.</source>
        <translation>Показать эту справку.</translation>
    </message>
    <message>
        <source>Displays version information.</source>
        <translation>Показать версию.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>После &quot;%1&quot; нет значения.</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Параметры:</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>После &quot;%1&quot; значение не ожидается.</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Неизвестный параметр &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Неизвестные параметры: %1.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Вызов: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[параметры]</translation>
    </message>
</context>
<context>
    <name>Velmo</name>
    <message>
        <source>Options:</source>
        <translation>Параметры:</translation>
    </message>
    <message>
        <source>Commands (velmo help COMMAND tells more):</source>
        <translation>Команды (подробнее: velmo help COMMAND):</translation>
    </message>
    <message>
        <source>Usage:</source>
        <translation>Вызов:</translation>
    </message>
    <message>
        <source>Answers questions about the cash devices of a kiosk.</source>
        <translation>Отвечает на вопросы о денежных устройствах терминала.</translation>
    </message>
    <message>
        <source>no command given; velmo --help lists them</source>
        <translation>команда не задана; их перечисляет velmo --help</translation>
    </message>
    <message>
        <source>usage: velmo %1 ... (known: %2)</source>
        <translation>вызов: velmo %1 ... (есть: %2)</translation>
    </message>
    <message>
        <source>velmo %1 (library built %2)</source>
        <translation>velmo %1 (библиотека собрана %2)</translation>
    </message>
    <message>
        <source>usage: %1</source>
        <translation>вызов: %1</translation>
    </message>
    <message>
        <source>Why notes were refused: one answer for every note of a log.</source>
        <translation>Почему купюры не приняты: по ответу на каждую купюру журнала.</translation>
    </message>
    <message>
        <source>Tells for each note what became of it and why: every filter that objected, with the lines that counted and what clears them, or what was the matter with the device. A session log has one JSON object a line, plain or compressed by gzip: what a device reported, or a published state {&quot;device_states&quot;: [...]}, with &quot;time&quot; and &quot;session&quot;: &quot;start&quot; where known.</source>
        <translation>Говорит о каждой купюре, что с ней стало и почему: каждый фильтр, который возражал, со строками, которые учтены, и тем, что сбросит отказ, или что было с устройством. В журнале сеансов на строке один объект JSON, файл может быть сжат gzip: что сообщило устройство, или состояние службы {&quot;device_states&quot;: [...]}, с &quot;time&quot; и &quot;session&quot;: &quot;start&quot;, где они известны.</translation>
    </message>
    <message>
        <source>What happened in a session log, event by event.</source>
        <translation>Что происходило в журнале сеансов, событие за событием.</translation>
    </message>
    <message>
        <source>Plays what the devices reported through the worker, the note filters and the published state, and shows for every line what came of it.</source>
        <translation>Проводит то, что сообщали устройства, через обработчик, фильтры купюр и состояние службы и показывает для каждой строки, что вышло.</translation>
    </message>
    <message>
        <source>What a published service state means.</source>
        <translation>Что значит состояние службы.</translation>
    </message>
    <message>
        <source>Checks a device state and rewrites it.</source>
        <translation>Проверяет состояние устройства и переписывает его.</translation>
    </message>
    <message>
        <source>Checks every key and value of a device state, and writes it as the compact text that the service sends.</source>
        <translation>Проверяет каждый ключ и каждое значение состояния устройства и пишет его кратким текстом, какой посылает служба.</translation>
    </message>
    <message>
        <source>Changes values, in the list or into another file.</source>
        <translation>Меняет значения в этом списке или в другом файле.</translation>
    </message>
    <message>
        <source>The route map.</source>
        <translation>Карта маршрутов.</translation>
    </message>
    <message>
        <source>The catalogue of device models.</source>
        <translation>Каталог моделей устройств.</translation>
    </message>
    <message>
        <source>The note filters and their parameters.</source>
        <translation>Фильтры купюр и их параметры.</translation>
    </message>
    <message>
        <source>What each filter does, and its parameters with the pattern of a valid value.</source>
        <translation>Что делает каждый фильтр, и его параметры с образцом допустимого значения.</translation>
    </message>
    <message>
        <source>%1: expected a number</source>
        <translation>%1: ожидается число</translation>
    </message>
    <message>
        <source>Sessions: %1</source>
        <translation>Сеансов: %1</translation>
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
        <source>Filters in force (%1):</source>
        <translation>Действующие фильтры (%1):</translation>
    </message>
    <message>
        <source>None: every note is accepted.</source>
        <translation>Нет: принимается любая купюра.</translation>
    </message>
    <message>
        <source>log and filters cannot both come from standard input</source>
        <translation>журнал и фильтры нельзя читать вместе со стандартного ввода</translation>
    </message>
    <message>
        <source>filters</source>
        <translation>фильтры</translation>
    </message>
    <message>
        <source>%1: answers may differ from the service&apos;s</source>
        <translation>%1: ответы могут расходиться с решениями службы</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>стандартный ввод</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>Показать эту справку.</translation>
    </message>
    <message>
        <source>Print the version of the library and the time of its build.</source>
        <translation>Показать версию библиотеки и время её сборки.</translation>
    </message>
    <message>
        <source>The note filters: [{&quot;name&quot;:&quot;AttemptsFilter&quot;,&quot;params&quot;:{&quot;denom&quot;:1000,&quot;attempts&quot;:2}}, ...]</source>
        <translation>Фильтры купюр: [{&quot;name&quot;:&quot;AttemptsFilter&quot;,&quot;params&quot;:{&quot;denom&quot;:1000,&quot;attempts&quot;:2}}, ...]</translation>
    </message>
    <message>
        <source>In place of --filters: the filters that the service&apos;s settings imply.</source>
        <translation>Вместо --filters: фильтры, которые следуют из настроек службы.</translation>
    </message>
    <message>
        <source>Print JSON in place of text.</source>
        <translation>Печатать JSON вместо текста.</translation>
    </message>
    <message>
        <source>Only session N, counted from 1 in each log.</source>
        <translation>Только сеанс N, в каждом журнале счёт с 1.</translation>
    </message>
    <message>
        <source>Only the device with that identifier.</source>
        <translation>Только устройство с этим номером.</translation>
    </message>
    <message>
        <source>Show only what the filters refused.</source>
        <translation>Показать только то, что не приняли фильтры.</translation>
    </message>
    <message>
        <source>Show only the summary.</source>
        <translation>Показать только итоги.</translation>
    </message>
    <message>
        <source>Display names by device identifier: {&quot;1&quot;: &quot;Validator&quot;}.</source>
        <translation>Имена для показа по номерам устройств: {&quot;1&quot;: &quot;Купюроприёмник&quot;}.</translation>
    </message>
    <message>
        <source>Write the state as an indented map.</source>
        <translation>Писать состояние картой с отступами.</translation>
    </message>
    <message>
        <source>Write to OUT, &quot;-&quot; for standard output.</source>
        <translation>Писать в OUT, &quot;-&quot; - в стандартный вывод.</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Строка</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Устройство</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Купюра</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Решение</translation>
    </message>
    <message>
        <source>What it means</source>
        <translation>Что это значит</translation>
    </message>
    <message>
        <source>reject</source>
        <translation>не принять</translation>
    </message>
    <message>
        <source>accept</source>
        <translation>принять</translation>
    </message>
    <message>
        <source>money may be accepted</source>
        <translation>деньги можно вносить</translation>
    </message>
    <message>
        <source>nothing new</source>
        <translation>ничего нового</translation>
    </message>
    <message>
        <source>-- session %1 --</source>
        <translation>-- сеанс %1 --</translation>
    </message>
    <message>
        <source>The settings as the service would use them.</source>
        <translation>Настройки, как их поймёт служба.</translation>
    </message>
    <message>
        <source>Marks what is at its default, and what the list lacks. With --json a list of {&quot;path&quot;, &quot;value&quot;, &quot;default&quot;, &quot;source&quot;}.</source>
        <translation>Помечает то, что равно встроенному значению, и то, чего в списке нет. С --json - список {&quot;path&quot;, &quot;value&quot;, &quot;default&quot;, &quot;source&quot;}.</translation>
    </message>
    <message>
        <source>One value as the service would use it.</source>
        <translation>Одно значение, как его поймёт служба.</translation>
    </message>
    <message>
        <source>Changes what it is told to, and what a device needs whose model or interface changes; every other byte stays. What would leave new errors is refused. A file that cannot be written whole is left as it was.</source>
        <translation>Меняет то, что велено, и то, что нужно устройству, у которого меняется модель или интерфейс; остальные байты не меняются. То, из-за чего появятся новые ошибки, не записывается. Файл, который нельзя записать целиком, остаётся прежним.</translation>
    </message>
    <message>
        <source>Removes settings, so that their defaults apply.</source>
        <translation>Убирает настройки, чтобы действовали встроенные значения.</translation>
    </message>
    <message>
        <source>Adds a device with the defaults of its model.</source>
        <translation>Добавляет устройство со встроенными значениями его модели.</translation>
    </message>
    <message>
        <source>MODEL is the number or name of velmo devices. The device gets the first free index, and the device count is raised to have it in.</source>
        <translation>MODEL - номер или имя из velmo devices. Устройство получает первый свободный индекс, а число устройств увеличивается, если нужно.</translation>
    </message>
    <message>
        <source>Removes a device and moves up those behind it.</source>
        <translation>Убирает устройство и сдвигает те, что за ним.</translation>
    </message>
    <message>
        <source>What the service would ignore, miss or read differently.</source>
        <translation>Чего служба не учтёт, не найдёт или что поймёт иначе.</translation>
    </message>
    <message>
        <source>An error is where the service would do something else than the list says, or a device would not work; a warning is odd, but harmless. The exit code is 1 when it finds something.</source>
        <translation>Ошибка - когда служба сделает не то, что сказано в списке, или устройство не будет работать; предупреждение - когда странно, но безвредно. Код завершения 1, когда что-нибудь найдено.</translation>
    </message>
    <message>
        <source>What the service would do differently with another list.</source>
        <translation>Что служба сделает иначе с другим списком.</translation>
    </message>
    <message>
        <source>The exit code is 1 when the lists differ.</source>
        <translation>Код завершения 1, когда списки различаются.</translation>
    </message>
    <message>
        <source>The note filters that the settings imply.</source>
        <translation>Фильтры купюр, которые следуют из настроек.</translation>
    </message>
    <message>
        <source>With --json a filters file.</source>
        <translation>С --json - файл фильтров.</translation>
    </message>
    <message>
        <source>The language of the texts, as &quot;ru&quot;, in place of the system&apos;s.</source>
        <translation>Язык текстов, например &quot;ru&quot;, вместо языка системы.</translation>
    </message>
    <message>
        <source>Print the formatted map.</source>
        <translation>Печатать карту настроек.</translation>
    </message>
    <message>
        <source>Say whether the value is from the list or a default.</source>
        <translation>Сказать, из списка ли значение или встроенное.</translation>
    </message>
    <message>
        <source>Write nothing; print what would change.</source>
        <translation>Ничего не записывать; показать, что изменится.</translation>
    </message>
    <message>
        <source>Write it with the errors that it will have.</source>
        <translation>Записать и с ошибками, которые появятся.</translation>
    </message>
    <message>
        <source>Do not tell what was changed.</source>
        <translation>Не сообщать, что изменено.</translation>
    </message>
    <message>
        <source>unknown model</source>
        <translation>неизвестная модель</translation>
    </message>
    <message>
        <source>Device %1: %2 (%3) &quot;%4&quot;, %5 %6</source>
        <translation>Устройство %1: %2 (%3) &quot;%4&quot;, %5 %6</translation>
    </message>
    <message>
        <source> - not below the device count</source>
        <translation> - не меньше числа устройств</translation>
    </message>
    <message>
        <source>coin</source>
        <translation>монета</translation>
    </message>
    <message>
        <source>note</source>
        <translation>купюра</translation>
    </message>
    <message>
        <source>Currency</source>
        <translation>Валюта</translation>
    </message>
    <message>
        <source>Face value</source>
        <translation>Номинал</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Вид</translation>
    </message>
    <message>
        <source>Route</source>
        <translation>Маршрут</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Число</translation>
    </message>
    <message>
        <source>Rejections</source>
        <translation>Отклонений</translation>
    </message>
    <message>
        <source>in the table below</source>
        <translation>в таблице ниже</translation>
    </message>
    <message>
        <source>default</source>
        <translation>встроенное</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>нет</translation>
    </message>
    <message>
        <source>not used</source>
        <translation>не действует</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Настройка</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Значение</translation>
    </message>
    <message>
        <source>Common settings</source>
        <translation>Общие настройки</translation>
    </message>
    <message>
        <source>not set</source>
        <translation>не задано</translation>
    </message>
    <message>
        <source>%1: there is no %2</source>
        <translation>%1: нет %2</translation>
    </message>
    <message>
        <source>%1: %2 is not set and has no default</source>
        <translation>%1: %2 не задано, и встроенного значения нет</translation>
    </message>
    <message>
        <source>%1: %2 is not set: not for a device of this model and interface</source>
        <translation>%1: %2 не задано: не для устройства этой модели и с этим интерфейсом</translation>
    </message>
    <message>
        <source>%1: %2 is missing: the built-in default is &quot;%3&quot;, AcceptorSettings has &quot;%4&quot;</source>
        <translation>%1: %2 нет: встроенное значение &quot;%3&quot;, в AcceptorSettings &quot;%4&quot;</translation>
    </message>
    <message>
        <source>list (%1)</source>
        <translation>список (%1)</translation>
    </message>
    <message>
        <source>%1: has another owner now</source>
        <translation>%1: теперь у файла другой владелец</translation>
    </message>
    <message>
        <source>added %1: %2</source>
        <translation>добавлено %1: %2</translation>
    </message>
    <message>
        <source>removed %1: %2</source>
        <translation>убрано %1: %2</translation>
    </message>
    <message>
        <source>changed %1: %2 -&gt; %3</source>
        <translation>изменено %1: %2 -&gt; %3</translation>
    </message>
    <message>
        <source>nothing to change</source>
        <translation>менять нечего</translation>
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
        <source>%1: not written because of these errors; --force writes it all the same</source>
        <translation>%1: не записано из-за этих ошибок; с --force запишется всё равно</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: expected the index of a device</source>
        <translation>&quot;%1&quot;: ожидается индекс устройства</translation>
    </message>
    <message>
        <source>What the customer is told, whether money may be accepted and why not, and the service report, for a published service state {&quot;device_states&quot;: [...]}, with &quot;time&quot; where known, or for many, one a line.</source>
        <translation>Что видит клиент, принимаются ли деньги и почему нет, и отчёт для обслуживания по состоянию службы {&quot;device_states&quot;: [...]}, с &quot;time&quot;, где оно известно, или по многим, по одному на строке.</translation>
    </message>
    <message>
        <source>Accepting money: allowed</source>
        <translation>Приём денег: разрешён</translation>
    </message>
    <message>
        <source>Accepting money: not allowed</source>
        <translation>Приём денег: не разрешён</translation>
    </message>
    <message>
        <source>Device faults:</source>
        <translation>Неполадки устройств:</translation>
    </message>
    <message>
        <source>-- line %1 --</source>
        <translation>-- строка %1 --</translation>
    </message>
    <message>
        <source>What other filters would have decided.</source>
        <translation>Что решили бы другие фильтры.</translation>
    </message>
    <message>
        <source>Tells every note of the logs that A accepts and B refuses, or the reverse, why, and what each refused in all. A and B are filters or settings, told apart by what they hold. Both judge what happened: what would have followed another verdict, a log does not say. The exit code is 1 when they differ.</source>
        <translation>Говорит о каждой купюре журналов, которую A принимает, а B нет, или наоборот, почему, и сколько не принял каждый. A и B - фильтры или настройки, что из них, видно по содержанию. Оба судят о том, что было: что последовало бы за другим решением, в журнале не сказано. Код завершения 1, когда они расходятся.</translation>
    </message>
    <message numerus="yes">
        <source>%n notes (%1)</source>
        <translation>
            <numerusform>%n купюру (%1)</numerusform>
            <numerusform>%n купюры (%1)</numerusform>
            <numerusform>%n купюр (%1)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>In these %n sessions, A refused %1, B %2; they differ on %3.</source>
        <translation>
            <numerusform>В этом %n сеансе A не приняли %1, B - %2; они расходятся на %3.</numerusform>
            <numerusform>В этих %n сеансах A не приняли %1, B - %2; они расходятся на %3.</numerusform>
            <numerusform>В этих %n сеансах A не приняли %1, B - %2; они расходятся на %3.</numerusform>
        </translation>
    </message>
    <message>
        <source>standard input can be read only once</source>
        <translation>стандартный ввод можно читать только один раз</translation>
    </message>
    <message>
        <source>bad lines skipped: %1</source>
        <translation>негодных строк пропущено: %1</translation>
    </message>
    <message>
        <source>settings or filters</source>
        <translation>настройки или фильтры</translation>
    </message>
    <message>
        <source>--json and --html do not go together</source>
        <translation>--json и --html вместе не работают</translation>
    </message>
    <message>
        <source>Write a page with pictures to PAGE.html in place of text.</source>
        <translation>Записать страницу с рисунками в PAGE.html вместо текста.</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>да</translation>
    </message>
    <message>
        <source>no</source>
        <translation>нет</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Параметр</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Образец</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>Значение</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Модель</translation>
    </message>
    <message>
        <source>Pays out</source>
        <translation>Выдаёт</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Класс</translation>
    </message>
    <message>
        <source>unknown filter &quot;%1&quot; (known: %2)</source>
        <translation>неизвестный фильтр &quot;%1&quot; (известны: %2)</translation>
    </message>
    <message>
        <source>standard output: %1</source>
        <translation>стандартный вывод: %1</translation>
    </message>
    <message>
        <source>expected a JSON object</source>
        <translation>ожидается объект JSON</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot;: expected a device number and a name</source>
        <translation>%1: &quot;%2&quot;: ожидается номер устройства и имя</translation>
    </message>
    <message>
        <source>key &quot;%1&quot; is missing</source>
        <translation>нет ключа &quot;%1&quot;</translation>
    </message>
    <message>
        <source>unknown key &quot;%1&quot;</source>
        <translation>неизвестный ключ &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the logs have nothing of the session or device that is asked for</source>
        <translation>в журналах нет ничего о сеансе или устройстве, о которых спрашивают</translation>
    </message>
    <message>
        <source>The kiosks that need somebody, and why.</source>
        <translation>Терминалы, к которым нужно прийти, и почему.</translation>
    </message>
    <message>
        <source>silent</source>
        <translation>молчит</translation>
    </message>
    <message>
        <source>out of order</source>
        <translation>не работает</translation>
    </message>
    <message>
        <source>faulty</source>
        <translation>неисправен</translation>
    </message>
    <message>
        <source>fine</source>
        <translation>исправен</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>неизвестно</translation>
    </message>
    <message numerus="yes">
        <source>%n kiosks: %1</source>
        <translation>
            <numerusform>%n терминал: %1</numerusform>
            <numerusform>%n терминала: %1</numerusform>
            <numerusform>%n терминалов: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Kiosk</source>
        <translation>Терминал</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>Last state</source>
        <translation>Последние данные</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>Что не так</translation>
    </message>
    <message>
        <source>The table is from before.</source>
        <translation>Таблица составлена раньше.</translation>
    </message>
    <message>
        <source>the broker does not answer</source>
        <translation>брокер не отвечает</translation>
    </message>
    <message>
        <source>no kiosk has a summary at &quot;%1&quot;</source>
        <translation>ни у одного терминала нет сводки в «%1»</translation>
    </message>
    <message>
        <source>Show what is new as it comes, on a cleared terminal.</source>
        <translation>Показывать новое по мере поступления, очищая экран.</translation>
    </message>
    <message>
        <source>The broker; localhost:1883 without it.</source>
        <translation>Брокер; если не задан, localhost:1883.</translation>
    </message>
    <message>
        <source>Where the summaries are; kiosks/+/summary without it.</source>
        <translation>Где лежат сводки; если не задано, kiosks/+/summary.</translation>
    </message>
    <message>
        <source>A file with USER:PASSWORD.</source>
        <translation>Файл с USER:PASSWORD.</translation>
    </message>
    <message>
        <source>Connect by TLS and trust these certificates.</source>
        <translation>Соединяться по TLS и доверять этим сертификатам.</translation>
    </message>
    <message>
        <source>The client&apos;s own certificate.</source>
        <translation>Собственный сертификат клиента.</translation>
    </message>
    <message>
        <source>Its key.</source>
        <translation>Его ключ.</translation>
    </message>
    <message>
        <source>%1: expected a value</source>
        <translation>%1: ожидается значение</translation>
    </message>
    <message>
        <source>the file ends in the middle of a line</source>
        <translation>файл обрывается посреди строки</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;</source>
        <translation>неизвестная команда &quot;%1&quot;</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>неизвестный параметр %1</translation>
    </message>
    <message>
        <source>argument %1, &quot;%2&quot;: wrong UTF-8</source>
        <translation>аргумент %1, &quot;%2&quot;: неверный UTF-8</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>стандартный вывод</translation>
    </message>
    <message>
        <source>%1: is an input too; not overwritten</source>
        <translation>%1: этот файл читается; он не перезаписан</translation>
    </message>
    <message>
        <source>%1: has further names (hard links), which would keep the old content; not written</source>
        <translation>%1: у файла есть другие имена (жёсткие ссылки), под которыми осталось бы прежнее содержимое; не записано</translation>
    </message>
    <message>
        <source>%1: is no regular file to change; --output says where the changed list goes</source>
        <translation>%1: это не обычный файл, его нельзя изменить; куда записать изменённый список, указывает --output</translation>
    </message>
    <message>
        <source>%1: another program is changing it</source>
        <translation>%1: его изменяет другая программа</translation>
    </message>
    <message>
        <source>carried over %1: %2 (from %3)</source>
        <translation>перенесено %1: %2 (из %3)</translation>
    </message>
    <message>
        <source>%1: was changed meanwhile; not written</source>
        <translation>%1: тем временем изменён; не записано</translation>
    </message>
    <message>
        <source>Skip bad lines and what cannot be read of a log; the exit code is still 2.</source>
        <translation>Пропускать негодные строки и то, чего в журнале не прочесть; код завершения всё равно 2.</translation>
    </message>
    <message>
        <source>%1: expected a number from %2 to %3</source>
        <translation>%1: ожидается число от %2 до %3</translation>
    </message>
    <message>
        <source>Where kiosks publish their states.</source>
        <translation>Где терминалы публикуют свои состояния.</translation>
    </message>
    <message>
        <source>Where their summaries are published.</source>
        <translation>Где публикуются сводки о них.</translation>
    </message>
    <message>
        <source>Where a message, its will, says that a kiosk is gone.</source>
        <translation>Где сообщение-завещание говорит, что терминал пропал.</translation>
    </message>
    <message>
        <source>After how long a kiosk is told of as silent; 0 for never.</source>
        <translation>Через сколько терминал считается молчащим; 0 - никогда.</translation>
    </message>
    <message>
        <source>The language of the summaries, as &quot;ru&quot;, in place of the system&apos;s.</source>
        <translation>Язык сводок, например «ru», вместо системного.</translation>
    </message>
    <message>
        <source>Makes summaries of what kiosks publish at an MQTT broker.</source>
        <translation>Составляет сводки о том, что терминалы публикуют у брокера MQTT.</translation>
    </message>
    <message>
        <source>unknown argument &quot;%1&quot;</source>
        <translation>неизвестный аргумент «%1»</translation>
    </message>
    <message>
        <source>The kiosk has been silent for more than %1 s.</source>
        <translation>Терминал молчит больше %1 с.</translation>
    </message>
    <message>
        <source>The kiosk is offline.</source>
        <translation>Терминал не на связи.</translation>
    </message>
    <message>
        <source>the topic is of no kiosk</source>
        <translation>тема не относится ни к одному терминалу</translation>
    </message>
    <message numerus="yes">
        <source>removed %1: %2 (%n elements)</source>
        <translation>
            <numerusform>убрано %1: %2 (%n элемент)</numerusform>
            <numerusform>убрано %1: %2 (%n элемента)</numerusform>
            <numerusform>убрано %1: %2 (%n элементов)</numerusform>
        </translation>
    </message>
    <message>
        <source>changed %1: %2 in each &quot;value&quot;</source>
        <translation>изменено %1: %2 в каждом &quot;value&quot;</translation>
    </message>
    <message>
        <source>no line has a time: nothing can be selected by it</source>
        <translation>ни в одной строке нет времени: выбрать по нему ничего нельзя</translation>
    </message>
    <message>
        <source>the logs have nothing of the device that is asked for</source>
        <translation>в журналах нет ничего об устройстве, о котором спрашивают</translation>
    </message>
    <message>
        <source>the logs have no such kiosk</source>
        <translation>в журналах нет такого терминала</translation>
    </message>
    <message>
        <source>--json, --csv and --html exclude each other</source>
        <translation>--json, --csv и --html вместе не работают</translation>
    </message>
    <message>
        <source>log and counts cannot both come from standard input</source>
        <translation>журнал и результаты пересчёта нельзя читать вместе со стандартного ввода</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>строка %1</translation>
    </message>
    <message>
        <source>%1 line %2</source>
        <translation>%1, строка %2</translation>
    </message>
    <message>
        <source>Period %1: from %2 to the end, %3</source>
        <translation>Период %1: начало - %2, конец - %3</translation>
    </message>
    <message>
        <source>Period %1: from %2 to its collection, %3</source>
        <translation>Период %1: начало - %2, инкассация - %3</translation>
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
        <source>Pieces of unknown value that may lie in the cassette: %1</source>
        <translation>Купюр и монет неизвестного номинала, которые могут быть в кассете: %1</translation>
    </message>
    <message>
        <source>Of money the log tells nothing.</source>
        <translation>О деньгах в журнале ничего нет.</translation>
    </message>
    <message>
        <source>Everything adds up.</source>
        <translation>Всё сходится.</translation>
    </message>
    <message>
        <source>What does not add up:</source>
        <translation>Что не сходится:</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Период</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Место</translation>
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
        <source>%1, %2 of %3: %4. What can explain it:</source>
        <translation>%1, номинал %3, %2: %4. Чем это можно объяснить:</translation>
    </message>
    <message>
        <source>pieces</source>
        <translation>шт.</translation>
    </message>
    <message>
        <source>nothing in the logs</source>
        <translation>в журналах ничего нет</translation>
    </message>
    <message>
        <source>Kiosk %1</source>
        <translation>Терминал %1</translation>
    </message>
    <message>
        <source>The device says of its cash: %1</source>
        <translation>О своих деньгах устройство сообщает: %1</translation>
    </message>
    <message>
        <source>Where the money is: what lies in each cassette and channel.</source>
        <translation>Где деньги: что лежит в каждой кассете и в каждом канале.</translation>
    </message>
    <message>
        <source>Tells for each device, from one collection of its cassette to the next, what came, went and moved, what must lie there now, within which range that is known and why, and what in the logs does not add up. Several logs are of one kiosk, and are put in the order of their times.</source>
        <translation>Говорит о каждом устройстве, от одной инкассации его кассеты до следующей, что пришло, ушло и переместилось, что должно лежать там сейчас, в каких пределах это известно и почему, и что в журналах не сходится. Несколько журналов считаются журналами одного терминала и берутся в порядке времени.</translation>
    </message>
    <message>
        <source>Incomplete: the logs were not read to the end.</source>
        <translation>Неполно: журналы прочитаны не до конца.</translation>
    </message>
    <message>
        <source>%1: notes before the first time, left out: %2</source>
        <translation>%1: опущено купюр до первой строки с временем: %2</translation>
    </message>
    <message>
        <source>%1: no line has a time: nothing can be selected by it</source>
        <translation>%1: ни в одной строке нет времени: выбрать по нему ничего нельзя</translation>
    </message>
    <message>
        <source>%1 and %2 overlap from %3 to %4: %5</source>
        <translation>%1 и %2 пересекаются с %3 по %4: %5</translation>
    </message>
    <message>
        <source>taken together by their times</source>
        <translation>сведены по времени</translation>
    </message>
    <message numerus="yes">
        <source>%n lines that are in both are taken once</source>
        <translation>
            <numerusform>%n строка, которая есть в обоих, взята один раз</numerusform>
            <numerusform>%n строки, которые есть в обоих, взяты один раз</numerusform>
            <numerusform>%n строк, которые есть в обоих, взяты один раз</numerusform>
        </translation>
    </message>
    <message>
        <source>the clock goes back from %1 to %2; the lines stay in their order</source>
        <translation>часы идут назад, с %1 на %2; порядок строк сохраняется</translation>
    </message>
    <message>
        <source>a line of kiosk &quot;%1&quot; in the log of &quot;%2&quot;</source>
        <translation>строка терминала &quot;%1&quot; в журнале терминала &quot;%2&quot;</translation>
    </message>
    <message>
        <source>the line does not say which kiosk it is of</source>
        <translation>в строке не сказано, какого она терминала</translation>
    </message>
    <message>
        <source>%1: no line has a time; the logs are taken in the order in which they are given</source>
        <translation>%1: ни в одной строке нет времени; журналы взяты в том порядке, в каком заданы</translation>
    </message>
    <message>
        <source>standard input can be given only once</source>
        <translation>стандартный ввод можно задать только один раз</translation>
    </message>
    <message>
        <source>%1: given more than once, taken once</source>
        <translation>%1: задан несколько раз, взят один раз</translation>
    </message>
    <message>
        <source>Only from that time on, as 2026-11-16T10:05:12 of the local zone, with Z or an offset, or from the beginning of a date.</source>
        <translation>Только с этого времени, например 2026-11-16T10:05:12 в местном часовом поясе, с Z или смещением, или с начала даты.</translation>
    </message>
    <message>
        <source>Only up to that time, or to the end of a date.</source>
        <translation>Только до этого времени или до конца даты.</translation>
    </message>
    <message>
        <source>Only notes of that face value.</source>
        <translation>Только купюры этого номинала.</translation>
    </message>
    <message>
        <source>Only notes of which that became: refused, taken, stuck, rejected, returned or unknown.</source>
        <translation>Только купюры с этим исходом: refused, taken, stuck, rejected, returned или unknown.</translation>
    </message>
    <message>
        <source>Show times in UTC.</source>
        <translation>Показывать время в UTC.</translation>
    </message>
    <message>
        <source>Show only what does not add up.</source>
        <translation>Показать только то, что не сходится.</translation>
    </message>
    <message>
        <source>What was counted, to be held against the ledger: a table with the columns device, place, denomination, count, or such a JSON list.</source>
        <translation>Результаты пересчёта для сверки с учётом: таблица со столбцами device, place, denomination, count или такой же список JSON.</translation>
    </message>
    <message>
        <source>Only the newest period of each device.</source>
        <translation>Только самый новый период каждого устройства.</translation>
    </message>
    <message>
        <source>Each log is of a kiosk of its own.</source>
        <translation>Каждый журнал - отдельного терминала.</translation>
    </message>
    <message>
        <source>all devices</source>
        <translation>все устройства</translation>
    </message>
    <message>
        <source>%1: earlier ones, not shown: %2</source>
        <translation>%1: более ранних не показано: %2</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Журнал</translation>
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
        <source>Rejected</source>
        <translation>Отклонены</translation>
    </message>
    <message>
        <source>Rejected %</source>
        <translation>Отклонены, %</translation>
    </message>
    <message>
        <source>Refused %</source>
        <translation>Не приняты, %</translation>
    </message>
    <message>
        <source>Stuck</source>
        <translation>Застряли</translation>
    </message>
    <message>
        <source>What was the matter:</source>
        <translation>Что было не так:</translation>
    </message>
    <message>
        <source>%1: expected an ISO 8601 time or date, as 2026-11-16T10:05:12Z</source>
        <translation>%1: ожидается время или дата ISO 8601, например 2026-11-16T10:05:12Z</translation>
    </message>
    <message>
        <source>--from is after --to</source>
        <translation>--from позже --to</translation>
    </message>
    <message>
        <source>%1: unknown outcome &quot;%2&quot; (known: %3)</source>
        <translation>%1: неизвестный исход &quot;%2&quot; (известны: %3)</translation>
    </message>
    <message>
        <source>--refusals and --contradictions do not go together</source>
        <translation>--refusals и --contradictions вместе не работают</translation>
    </message>
    <message>
        <source>the same is counted at %1</source>
        <translation>то же уже указано в %1</translation>
    </message>
    <message>
        <source>Period %1: from %2 to the time that is asked for, %3</source>
        <translation>Период %1: %2 – до указанного времени, %3</translation>
    </message>
    <message>
        <source>In the logs themselves everything adds up.</source>
        <translation>В самих журналах всё сходится.</translation>
    </message>
    <message>
        <source>Not counted: device %1, period %2, %3, %4; expected: %5</source>
        <translation>Не пересчитано: устройство %1, период %2, %3, %4; ожидается: %5</translation>
    </message>
    <message>
        <source>The logs tell of no device.</source>
        <translation>В журналах нет ни одного устройства.</translation>
    </message>
    <message>
        <source>%1 begins in the second in which %2 ends, with lines of that: taken once, though they may have happened twice</source>
        <translation>%1 начинается в ту секунду, в которую кончается %2, с его же строк: они учтены один раз, хотя могли быть и дважды</translation>
    </message>
    <message>
        <source>lines before the one that names kiosk &quot;%1&quot; do not say which kiosk they are of: taken to be of &quot;%2&quot;</source>
        <translation>в строках до той, что называет терминал «%1», терминал не указан: они отнесены к «%2»</translation>
    </message>
    <message>
        <source>Print a table for spreadsheets: with --counted, of the counts.</source>
        <translation>Вывести таблицу для табличного процессора, с --counted – таблицу пересчёта.</translation>
    </message>
    <message>
        <source>What became of a kiosk, and when.</source>
        <translation>Что происходило с терминалом и когда.</translation>
    </message>
    <message>
        <source>Tells of the conditions that it was in, of its faults and of the collections of its cassettes, newest last, by what velmo-fleet remembers at --history.</source>
        <translation>Показывает, в каких состояниях он был, его неисправности и инкассации его кассет, от старых к новым, по истории, которую ведёт velmo-fleet (--history).</translation>
    </message>
    <message>
        <source>Takes kiosks that are no more out of the fleet.</source>
        <translation>Убирает из парка терминалы, которых больше нет.</translation>
    </message>
    <message>
        <source>Ends what the broker keeps of them: state, summary and will. Where one of them is not there, nothing is done. One that still publishes comes back, and is named.</source>
        <translation>Удаляет то, что хранит о них брокер: состояние, сводку и завещание. Если хотя бы одного из терминалов там нет, ничего не делается. Терминал, который ещё публикует, появится снова; команда его назовёт.</translation>
    </message>
    <message>
        <source>%1: unknown: &quot;%2&quot;</source>
        <translation>%1: неизвестное значение «%2»</translation>
    </message>
    <message>
        <source> (known: %1)</source>
        <translation> (известны: %1)</translation>
    </message>
    <message>
        <source>The summaries are still coming.</source>
        <translation>Сводки ещё поступают.</translation>
    </message>
    <message>
        <source>%1: expected %2</source>
        <translation>%1: ожидается %2</translation>
    </message>
    <message>
        <source> or </source>
        <translation> или </translation>
    </message>
    <message>
        <source>the broker keeps nothing of %1; nothing was forgotten</source>
        <translation>у брокера ничего нет о %1; ничего не убрано</translation>
    </message>
    <message>
        <source>%1: forgotten (%2)</source>
        <translation>%1: убран (%2)</translation>
    </message>
    <message>
        <source>; not known to have ended: %1</source>
        <translation>; не подтверждено, что убраны: %1</translation>
    </message>
    <message>
        <source>%1 needs %2</source>
        <translation>для %1 нужен %2</translation>
    </message>
    <message numerus="yes">
        <source>%1: the cassette was collected, with %n notes</source>
        <translation>
            <numerusform>%1: кассета инкассирована, в ней %n купюра</numerusform>
            <numerusform>%1: кассета инкассирована, в ней %n купюры</numerusform>
            <numerusform>%1: кассета инкассирована, в ней %n купюр</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: the cassette was collected</source>
        <translation>%1: кассета инкассирована</translation>
    </message>
    <message>
        <source>still</source>
        <translation>до сих пор</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Начало</translation>
    </message>
    <message>
        <source>For</source>
        <translation>Как долго</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Что</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: expected a month, as 2026-11, that has begun</source>
        <translation>«%1»: ожидается уже начавшийся месяц, например 2026-11</translation>
    </message>
    <message>
        <source>%1: expected a time, as 90m, 48h, 3d or 2w</source>
        <translation>%1: ожидается срок, например 90m, 48h, 3d или 2w</translation>
    </message>
    <message>
        <source>%1, cassette</source>
        <translation>%1, кассета</translation>
    </message>
    <message>
        <source>%1, channel %2</source>
        <translation>%1, канал %2</translation>
    </message>
    <message>
        <source>%1, channel %2 of %3</source>
        <translation>%1, канал %2, номинал %3</translation>
    </message>
    <message>
        <source>%1: empty (holds %2, %3 a day)</source>
        <translation>%1: опустеет (сейчас %2 шт., %3 в день)</translation>
    </message>
    <message>
        <source>%1: full (holds %2, %3 a day)</source>
        <translation>%1: заполнится (сейчас %2 шт., %3 в день)</translation>
    </message>
    <message>
        <source>now</source>
        <translation>сейчас</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: the history knows no such kiosk</source>
        <translation>«%1»: такого терминала в истории нет</translation>
    </message>
    <message>
        <source>The history tells of nothing in that time.</source>
        <translation>За это время в истории ничего нет.</translation>
    </message>
    <message>
        <source>The history knows nothing of %1.</source>
        <translation>За %1 в истории ничего нет.</translation>
    </message>
    <message>
        <source>all together</source>
        <translation>все вместе</translation>
    </message>
    <message>
        <source>In service, %</source>
        <translation>В работе, %</translation>
    </message>
    <message>
        <source>Silent, %</source>
        <translation>Молчание, %</translation>
    </message>
    <message>
        <source>Not known, %</source>
        <translation>Неизвестно, %</translation>
    </message>
    <message>
        <source>Not before</source>
        <translation>Не раньше</translation>
    </message>
    <message>
        <source>By</source>
        <translation>Не позже</translation>
    </message>
    <message>
        <source>What cannot be said, and why</source>
        <translation>Чего сказать нельзя и почему</translation>
    </message>
    <message>
        <source>due: %1, later: %2, cannot say: %3</source>
        <translation>в этот срок: %1, позже: %2, сказать нельзя: %3</translation>
    </message>
    <message>
        <source>less than a minute</source>
        <translation>меньше минуты</translation>
    </message>
    <message numerus="yes">
        <source>%n minutes</source>
        <translation>
            <numerusform>%n минута</numerusform>
            <numerusform>%n минуты</numerusform>
            <numerusform>%n минут</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hours</source>
        <translation>
            <numerusform>%n час</numerusform>
            <numerusform>%n часа</numerusform>
            <numerusform>%n часов</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>%n день</numerusform>
            <numerusform>%n дня</numerusform>
            <numerusform>%n дней</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more for which there is no room here</source>
        <translation>
            <numerusform>ещё %n, для которого здесь нет места</numerusform>
            <numerusform>ещё %n, для которых здесь нет места</numerusform>
            <numerusform>ещё %n, для которых здесь нет места</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %n times this month</source>
        <translation>
            <numerusform>%1, %n-й раз в этом месяце</numerusform>
            <numerusform>%1, %n-й раз в этом месяце</numerusform>
            <numerusform>%1, %n-й раз в этом месяце</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n kiosks selected: %1</source>
        <translation>
            <numerusform>выбран %n терминал: %1</numerusform>
            <numerusform>выбрано %n терминала: %1</numerusform>
            <numerusform>выбрано %n терминалов: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hidden by the selection</source>
        <translation>
            <numerusform>скрыт отбором: %n</numerusform>
            <numerusform>скрыто отбором: %n</numerusform>
            <numerusform>скрыто отбором: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Регион</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Причина</translation>
    </message>
    <message>
        <source>Kiosks</source>
        <translation>Терминалы</translation>
    </message>
    <message>
        <source>none</source>
        <translation>нет</translation>
    </message>
    <message numerus="yes">
        <source>The summaries of %n kiosks cannot be read.</source>
        <translation>
            <numerusform>Сводку %n терминала прочесть нельзя.</numerusform>
            <numerusform>Сводки %n терминалов прочесть нельзя.</numerusform>
            <numerusform>Сводки %n терминалов прочесть нельзя.</numerusform>
        </translation>
    </message>
    <message>
        <source>No worker tells of itself at &quot;%1&quot;: whether these are all kiosks, and what became of them since, is not known.</source>
        <translation>Ни один обработчик не сообщает о себе в «%1»: все ли это терминалы и что с ними стало с тех пор, неизвестно.</translation>
    </message>
    <message>
        <source>No worker has part %1: what is shown of its kiosks may be from before.</source>
        <translation>У части %1 нет обработчика: показанное о её терминалах могло устареть.</translation>
    </message>
    <message>
        <source>The worker of part %1 is not ready: it still reads what the kiosks told last.</source>
        <translation>Обработчик части %1 не готов: он ещё читает последние данные терминалов.</translation>
    </message>
    <message numerus="yes">
        <source>%n kiosks are missing: the broker has not sent their summaries. With mosquitto, max_queued_messages sets how many it sends.</source>
        <translation>
            <numerusform>Не хватает %n терминала: брокер не прислал его сводку. В mosquitto max_queued_messages задаёт, сколько их он присылает.</numerusform>
            <numerusform>Не хватает %n терминалов: брокер не прислал их сводки. В mosquitto max_queued_messages задаёт, сколько их он присылает.</numerusform>
            <numerusform>Не хватает %n терминалов: брокер не прислал их сводки. В mosquitto max_queued_messages задаёт, сколько их он присылает.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: what the worker tells of itself cannot be read.</source>
        <translation>%1: то, что обработчик сообщает о себе, прочесть нельзя.</translation>
    </message>
    <message>
        <source>Worker %1: %2</source>
        <translation>Обработчик %1: %2</translation>
    </message>
    <message>
        <source>Make the exit code 1 when the filters refused something, something does not add up, or a kiosk that is selected needs somebody.</source>
        <translation>Код завершения 1, когда фильтры что-нибудь не приняли, что-нибудь не сходится или к выбранному терминалу нужно прийти.</translation>
    </message>
    <message>
        <source>Where the workers tell of themselves; velmo-fleet/+/status without it.</source>
        <translation>Где обработчики сообщают о себе; если не задано, velmo-fleet/+/status.</translation>
    </message>
    <message>
        <source>Where the kiosks publish; kiosks/+/state without it.</source>
        <translation>Где публикуют терминалы; если не задано, kiosks/+/state.</translation>
    </message>
    <message>
        <source>Where their wills are; kiosks/+/will without it.</source>
        <translation>Где их завещания; если не задано, kiosks/+/will.</translation>
    </message>
    <message>
        <source>What velmo-fleet remembers: a file of SQLite, or postgresql://user@host:port/db?host=/socket/dir.</source>
        <translation>История, которую ведёт velmo-fleet: файл SQLite или postgresql://user@host:port/db?host=/socket/dir.</translation>
    </message>
    <message>
        <source>Only kiosks of such names, with * for any characters and ? for one; may be given several times.</source>
        <translation>Только терминалы с такими именами, * - любые символы, ? - один; можно задать несколько раз.</translation>
    </message>
    <message>
        <source>Only kiosks that are unknown, silent, out_of_order, faulty or fine; may be given several times.</source>
        <translation>Только терминалы в этом состоянии: unknown, silent, out_of_order, faulty или fine; можно задать несколько раз.</translation>
    </message>
    <message>
        <source>Only kiosks with a fault of that reason, as stacker_full; may be given several times.</source>
        <translation>Только терминалы с неисправностью по этой причине, например stacker_full; можно задать несколько раз.</translation>
    </message>
    <message>
        <source>Only kiosks whose names begin with that, up to the first of / - _ and the point; may be given several times.</source>
        <translation>Только терминалы, у которых такое начало имени, до первого из знаков / - _ и точки; можно задать несколько раз.</translation>
    </message>
    <message>
        <source>In place of the kiosks, how many there are of each reason or region.</source>
        <translation>Вместо терминалов - сколько их по каждой причине (reason) или в каждом регионе (region).</translation>
    </message>
    <message>
        <source>Every fault of a kiosk, or what cannot be said, on its own line.</source>
        <translation>Каждая неисправность терминала и то, чего сказать нельзя, - на своей строке.</translation>
    </message>
    <message>
        <source>How much of a month, as 2026-11, kiosks were in service; this month without one.</source>
        <translation>Какую долю месяца, например 2026-11, терминалы были в работе; если месяц не задан, за текущий.</translation>
    </message>
    <message>
        <source>What will be empty or full within that time, as 90m, 48h, 3d or 2w.</source>
        <translation>Что опустеет или заполнится в этот срок, например 90m, 48h, 3d или 2w.</translation>
    </message>
    <message>
        <source>Kiosks by condition</source>
        <translation>Терминалы по состояниям</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>any</source>
        <translation>все</translation>
    </message>
    <message>
        <source>show fine ones too</source>
        <translation>показывать и исправные</translation>
    </message>
    <message>
        <source>For how long</source>
        <translation>Как долго</translation>
    </message>
    <message>
        <source>since %1</source>
        <translation>с %1</translation>
    </message>
    <message>
        <source>%1× this month</source>
        <translation>%1-й раз в этом месяце</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>и ещё %1</translation>
    </message>
    <message>
        <source>The first %1 are shown; %2 more are not. The filters find them.</source>
        <translation>Показаны первые %1, не показано ещё %2. Их можно найти с помощью фильтров.</translation>
    </message>
    <message>
        <source>No kiosk needs somebody.</source>
        <translation>Нет терминалов, к которым нужно прийти.</translation>
    </message>
    <message>
        <source>Reading...</source>
        <translation>Чтение...</translation>
    </message>
    <message>
        <source>As of %1.</source>
        <translation>По состоянию на %1.</translation>
    </message>
    <message>
        <source>The worker does not answer.</source>
        <translation>Обработчик не отвечает.</translation>
    </message>
    <message>
        <source>The worker does not answer: what is shown is from %1.</source>
        <translation>Обработчик не отвечает: показаны данные на %1.</translation>
    </message>
    <message>
        <source>The worker has no connection to the broker: what is shown is from %1.</source>
        <translation>У обработчика нет связи с брокером: показаны данные на %1.</translation>
    </message>
    <message>
        <source>The worker is still reading what the broker has: kiosks may be missing.</source>
        <translation>Обработчик ещё читает данные брокера: показаны не все терминалы.</translation>
    </message>
    <message>
        <source>The table needs JavaScript, which is off here.</source>
        <translation>Для таблицы нужен JavaScript, а он здесь выключен.</translation>
    </message>
    <message>
        <source>No history is kept.</source>
        <translation>История не ведётся.</translation>
    </message>
    <message>
        <source>The history does not answer: %1</source>
        <translation>История не отвечает: %1</translation>
    </message>
    <message>
        <source>Conditions of the last 30 days</source>
        <translation>Состояния за последние 30 дней</translation>
    </message>
    <message>
        <source>Faults</source>
        <translation>Неисправности</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>Инкассации</translation>
    </message>
    <message>
        <source>Conditions</source>
        <translation>Состояния</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Когда</translation>
    </message>
    <message>
        <source>How long</source>
        <translation>Как долго</translation>
    </message>
    <message>
        <source>still so</source>
        <translation>до сих пор</translation>
    </message>
    <message>
        <source>Notes since the one before</source>
        <translation>Купюр с предыдущей</translation>
    </message>
    <message>
        <source>None.</source>
        <translation>Нет.</translation>
    </message>
    <message>
        <source>%1 older ones are not shown.</source>
        <translation>Более ранние не показаны: %1.</translation>
    </message>
    <message>
        <source>%1 d</source>
        <translation>%1 д</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 ч</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 мин</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 с</translation>
    </message>
    <message>
        <source>no devices</source>
        <translation>нет устройств</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>не читается</translation>
    </message>
    <message>
        <source>too large</source>
        <translation>слишком велико</translation>
    </message>
    <message>
        <source>en</source>
        <comment>language code</comment>
        <extracomment>The language of these words, for the attribute lang of HTML.</extracomment>
        <translation>ru</translation>
    </message>
    <message numerus="yes">
        <source> (and %n more since the last such line)</source>
        <translation>
            <numerusform> (и ещё %n с прошлой такой строки)</numerusform>
            <numerusform> (и ещё %n с прошлой такой строки)</numerusform>
            <numerusform> (и ещё %n с прошлой такой строки)</numerusform>
        </translation>
    </message>
    <message>
        <source>Where workers tell of themselves.</source>
        <translation>Где обработчики сообщают о себе.</translation>
    </message>
    <message>
        <source>What the worker goes by among the others; host and process without it.</source>
        <translation>Имя обработчика среди других; если не задано, хост и процесс.</translation>
    </message>
    <message>
        <source>Which part of the kiosks it summarises, of so many.</source>
        <translation>Какую часть терминалов он обрабатывает: номер и число частей.</translation>
    </message>
    <message>
        <source>After how many days a kiosk that stays silent is forgotten; 0 for never.</source>
        <translation>Через сколько дней молчания терминал убирается из парка; 0 - никогда.</translation>
    </message>
    <message>
        <source>--name: expected a name without /, + and #</source>
        <translation>--name: ожидается имя без /, + и #</translation>
    </message>
    <message>
        <source>--states, --summaries and --wills: expected as many levels of the kiosk&apos;s name in each</source>
        <translation>--states, --summaries и --wills: в каждом ожидается одинаковое число уровней имени терминала</translation>
    </message>
    <message>
        <source>--states, --summaries and --wills: expected %1 in each or in none</source>
        <translation>--states, --summaries и --wills: %1 ожидается в каждом или ни в одном</translation>
    </message>
    <message>
        <source>the broker does not take the summary of &quot;%1&quot;: %2</source>
        <translation>брокер не принимает сводку терминала «%1»: %2</translation>
    </message>
    <message numerus="yes">
        <source>The broker does not take the summaries of %n kiosks: %1.</source>
        <translation>
            <numerusform>Брокер не принимает сводку %n терминала: %1.</numerusform>
            <numerusform>Брокер не принимает сводки %n терминалов: %1.</numerusform>
            <numerusform>Брокер не принимает сводки %n терминалов: %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>--metrics: expected an address such as 127.0.0.1:9464, not &quot;%1&quot;</source>
        <translation>--metrics: ожидается адрес вида 127.0.0.1:9464, а не «%1»</translation>
    </message>
    <message>
        <source>--metrics: libcivetweb was built without IPv6 here</source>
        <translation>--metrics: здешняя libcivetweb собрана без IPv6</translation>
    </message>
    <message>
        <source>--metrics: &quot;%1&quot; cannot be used: %2</source>
        <translation>--metrics: использовать «%1» нельзя: %2</translation>
    </message>
    <message>
        <source>too many ask at once</source>
        <translation>слишком много запросов сразу</translation>
    </message>
    <message>
        <source>the name of the kiosk is too long, or no text</source>
        <translation>имя терминала слишком длинное или не является текстом</translation>
    </message>
    <message>
        <source>it is larger than %1 KiB</source>
        <translation>больше %1 КиБ</translation>
    </message>
    <message>
        <source>it tells of more than %1 devices</source>
        <translation>больше %1 устройств</translation>
    </message>
    <message>
        <source>What the kiosk published last cannot be read: %1.</source>
        <translation>Последние данные терминала прочесть нельзя: %1.</translation>
    </message>
    <message>
        <source>the clock of &quot;%1&quot; is wrong by %2 s</source>
        <translation>часы терминала «%1» неверны на %2 с</translation>
    </message>
    <message>
        <source>the broker does not take what is published: %1</source>
        <translation>брокер не принимает публикуемое: %1</translation>
    </message>
    <message>
        <source>The broker had no room for messages and dropped them.</source>
        <translation>У брокера не нашлось места для сообщений, и он их отбросил.</translation>
    </message>
    <message>
        <source>Nothing is written to the history: %1</source>
        <translation>Запись в историю не идёт: %1</translation>
    </message>
    <message>
        <source>Shows the kiosks of which nothing is heard, those where no device could take money, and those where some device does not work, worst first, of the summaries that velmo-fleet keeps at an MQTT broker, with the worst fault of each. Where, by what the workers tell of themselves, some may be missing or out of date, it says so, and the exit code is 2. With --history it tells for how long; --availability and --due ask the history alone.</source>
        <translation>Показывает терминалы, от которых нет вестей, те, где ни одно устройство не могло бы принять деньги, и те, где какое-либо устройство не работает, начиная с худших, по сводкам, которые velmo-fleet хранит у брокера MQTT, с худшей неисправностью каждого. Если, судя по тому, что обработчики сообщают о себе, часть сводок может отсутствовать или устареть, команда говорит об этом, и код завершения - 2. С --history видно, как долго это длится; --availability и --due обращаются только к истории.</translation>
    </message>
    <message>
        <source>kiosk %1 still publishes: it will be in the fleet again until it is switched off</source>
        <translation>терминал %1 ещё публикует: он снова будет в парке, пока его не выключат</translation>
    </message>
    <message>
        <source>the broker does not confirm the end of %1; perhaps there is no right to write there</source>
        <translation>брокер не подтверждает, что убраны: %1; возможно, нет права туда писать</translation>
    </message>
    <message>
        <source>%1: shares of the time for which the condition is known; not known: share of the month up to now.</source>
        <translation>%1: доли времени, за которое состояние известно; неизвестно: доля всего прошедшего времени месяца.</translation>
    </message>
    <message>
        <source>How long to wait for what is missing while nothing comes; 1 without it.</source>
        <translation>Сколько ждать недостающего, пока ничего не поступает; если не задано, 1.</translation>
    </message>
    <message>
        <source>Part %1 of %2: the kiosks of the other parts are shown by their workers.</source>
        <translation>Часть %1 из %2: терминалы остальных частей показывают их обработчики.</translation>
    </message>
    <message>
        <source>No kiosk matches the filters.</source>
        <translation>Нет терминалов, подходящих под фильтры.</translation>
    </message>
    <message>
        <source>device state</source>
        <translation>состояние устройства</translation>
    </message>
    <message>
        <source>kiosk offline</source>
        <translation>терминал не на связи</translation>
    </message>
    <message>
        <source>Where to keep the history of the kiosks: a file of SQLite, or postgresql://USER@HOST/DATABASE.</source>
        <translation>Где вести историю терминалов: файл SQLite или postgresql://USER@HOST/DATABASE.</translation>
    </message>
    <message>
        <source>Where the page of the kiosks is, and where Prometheus fetches the metrics, as &quot;127.0.0.1:9464&quot;.</source>
        <translation>Где страница терминалов и где Prometheus забирает показатели, например «127.0.0.1:9464».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no kiosk&apos;s name at &quot;%2&quot;</source>
        <translation>«%1» не может быть именем терминала в «%2»</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>How many, and of which condition: 3 faulty.</extracomment>
        <translation>%2 %1</translation>
    </message>
    <message>
        <source>no kiosk has such a name and region</source>
        <translation>нет терминала с таким именем и регионом</translation>
    </message>
    <message>
        <source>%1; %2 without it.</source>
        <translation>%1; если не задано, %2.</translation>
    </message>
    <message>
        <source>Another worker has the same name.</source>
        <translation>У другого обработчика такое же имя.</translation>
    </message>
    <message>
        <source>another worker has the same --name, &quot;%1&quot;</source>
        <translation>у другого обработчика такое же --name, «%1»</translation>
    </message>
    <message>
        <source>Lines that change</source>
        <translation>Строки, которые изменятся</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Строка %1</translation>
    </message>
    <message>
        <source> (no line feed at the end)</source>
        <translation> (без перевода строки в конце)</translation>
    </message>
    <message>
        <source>Save changes</source>
        <translation>Сохранение изменений</translation>
    </message>
    <message>
        <source>This changes in %1:</source>
        <translation>В %1 изменится:</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Сохранить</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Отмена</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>What is found in the list</source>
        <translation>Что найдено в списке</translation>
    </message>
    <message>
        <source>Filters that follow from the settings</source>
        <translation>Фильтры, следующие из настроек</translation>
    </message>
    <message>
        <source>Fi&amp;lters that follow</source>
        <translation>Ф&amp;ильтры из настроек</translation>
    </message>
    <message>
        <source>Fi&amp;ndings</source>
        <translation>&amp;Замечания</translation>
    </message>
    <message>
        <source>%1 in line %2</source>
        <translation>%1, строка %2</translation>
    </message>
    <message>
        <source>Nothing is wrong.</source>
        <translation>Замечаний нет.</translation>
    </message>
    <message>
        <source>Fi&amp;ndings (%1)</source>
        <translation>&amp;Замечания (%1)</translation>
    </message>
    <message>
        <source>The language of the window, as &quot;ru&quot;, in place of the system&apos;s.</source>
        <translation>Язык окна, например &quot;ru&quot;, вместо системного.</translation>
    </message>
    <message>
        <source>Shows a settings list as forms, checks it and changes it.</source>
        <translation>Показывает список настроек в виде форм, проверяет и изменяет его.</translation>
    </message>
    <message>
        <source>The settings list.</source>
        <translation>Список настроек.</translation>
    </message>
    <message>
        <source>Add a device</source>
        <translation>Добавление устройства</translation>
    </message>
    <message>
        <source>&amp;Model:</source>
        <translation>&amp;Модель:</translation>
    </message>
    <message>
        <source>It begins with the built-in defaults of its model.</source>
        <translation>Устройство начинает со встроенных значений своей модели.</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Добавить</translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation>Поиск настроек</translation>
    </message>
    <message>
        <source>Service and devices</source>
        <translation>Служба и устройства</translation>
    </message>
    <message>
        <source>Settings that match</source>
        <translation>Найденные настройки</translation>
    </message>
    <message>
        <source>No setting matches.</source>
        <translation>Ничего не найдено.</translation>
    </message>
    <message>
        <source>Default and removal</source>
        <translation>Встроенное значение и удаление</translation>
    </message>
    <message>
        <source>%1 or more.</source>
        <translation>Не меньше %1.</translation>
    </message>
    <message>
        <source>%1 to %2.</source>
        <translation>От %1 до %2.</translation>
    </message>
    <message>
        <source>not in the list: the default</source>
        <translation>нет в списке: встроенное</translation>
    </message>
    <message>
        <source>not in the list</source>
        <translation>нет в списке</translation>
    </message>
    <message>
        <source>not used by this device</source>
        <translation>этим устройством не используется</translation>
    </message>
    <message>
        <source>the default</source>
        <translation>встроенное</translation>
    </message>
    <message>
        <source>default: %1</source>
        <translation>встроенное: %1</translation>
    </message>
    <message>
        <source>on</source>
        <translation>включено</translation>
    </message>
    <message>
        <source>off</source>
        <translation>выключено</translation>
    </message>
    <message>
        <source>default: no rows</source>
        <translation>встроенное: пусто</translation>
    </message>
    <message>
        <source>%1: not written because of these errors:</source>
        <translation>%1: не записано из-за этих ошибок:</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Служба</translation>
    </message>
    <message>
        <source>Acceptance of money</source>
        <translation>Приём денег</translation>
    </message>
    <message>
        <source>Dispenser</source>
        <translation>Выдача денег</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Подключение</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>Протокол</translation>
    </message>
    <message>
        <source>Device %1: %2</source>
        <translation>Устройство %1: %2</translation>
    </message>
    <message>
        <source>Settings of cash devices</source>
        <translation>Настройки денежных устройств</translation>
    </message>
    <message>
        <source>No settings list is open.
Ctrl+O opens one.</source>
        <translation>Список настроек не открыт.
Открыть: Ctrl+O.</translation>
    </message>
    <message>
        <source>Open a settings list</source>
        <translation>Открыть список настроек</translation>
    </message>
    <message>
        <source>Settings lists (*.json);;All files (*)</source>
        <translation>Списки настроек (*.json);;Все файлы (*)</translation>
    </message>
    <message>
        <source>Nothing has changed.</source>
        <translation>Изменений нет.</translation>
    </message>
    <message>
        <source>Save the settings list as</source>
        <translation>Сохранить список настроек как</translation>
    </message>
    <message>
        <source>Saved %1.</source>
        <translation>Сохранено: %1.</translation>
    </message>
    <message>
        <source>Reloading drops the changes that were made here.</source>
        <translation>Если перечитать файл, сделанные здесь изменения пропадут.</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>&amp;Перечитать</translation>
    </message>
    <message>
        <source>Save &amp;as...</source>
        <translation>Сохранить &amp;как...</translation>
    </message>
    <message>
        <source>%1: has changes that are not saved.</source>
        <translation>%1: есть несохранённые изменения.</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>&amp;Сохранить...</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Не сохранять</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;ОК</translation>
    </message>
    <message>
        <source>Add row</source>
        <translation>Добавить строку</translation>
    </message>
    <message>
        <source>Remove row</source>
        <translation>Удалить строку</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(пусто)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Открыть...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>В&amp;ыход</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Правка</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Отменить</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Вернуть</translation>
    </message>
    <message>
        <source>Set the &amp;default</source>
        <translation>Встроенное &amp;значение</translation>
    </message>
    <message>
        <source>&amp;Take out of the list</source>
        <translation>У&amp;брать из списка</translation>
    </message>
    <message>
        <source>&amp;Find a setting</source>
        <translation>&amp;Найти настройку</translation>
    </message>
    <message>
        <source>&amp;Next finding</source>
        <translation>&amp;Следующее замечание</translation>
    </message>
    <message>
        <source>&amp;Devices</source>
        <translation>&amp;Устройства</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>&amp;Добавить...</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Удалить</translation>
    </message>
    <message>
        <source>Move &amp;up</source>
        <translation>В&amp;ыше</translation>
    </message>
    <message>
        <source>Move do&amp;wn</source>
        <translation>&amp;Ниже</translation>
    </message>
    <message>
        <source>%1: is no regular file</source>
        <translation>%1: это не обычный файл</translation>
    </message>
    <message>
        <source>While no worker ran or had a connection, kiosks count as in the condition before.</source>
        <translation>Пока ни один обработчик не работал или не было связи с брокером, считается прежнее состояние терминалов.</translation>
    </message>
</context>
</TS>
