#include "filterchain.h"
#include "filterfactory.h"
#include "filtermanager.h"
#include "literals.h"
#include "logcapture.h"

#include <QRegularExpression>
#include <QtTest>

#include <climits>
#include <memory>

namespace {

// A session, oldest state first: "<state> <note>, ...".
StatesList session(const QString& text)
{
    StatesList events;
    for (const QString& event : text.split(", "_s, Qt::SkipEmptyParts)) {
        DeviceState state;
        DeviceState::stateFromString(event.section(QLatin1Char(' '), 0, 0), state.state);
        state.currentNote = event.section(QLatin1Char(' '), 1).toInt();
        events.append(state);
    }
    return events;
}

AbstractFilter::FilterResult verdict(const QString& filter, const QVariantMap& params,
                                     StatesList* events)
{
    const std::unique_ptr<AbstractFilter> f(FilterFactory::createFilter(filter, params));
    return f->setEvents(events)->validate();
}

class CountingFilter : public AbstractFilter
{
public:
    explicit CountingFilter(int* calls, FilterResult answer = FILTER_ACCEPT)
        : m_calls(calls)
        , m_answer(answer)
    {
    }
    ~CountingFilter() override { *m_calls -= 100; }
    FilterResult validate() override
    {
        ++*m_calls;
        return m_answer;
    }
    QString getFilterName() const override { return "counting"_s; }
    QList<FieldDescription> getFieldsDescription() const override { return {}; }
    QString getFilterDescription() const override { return {}; }
    StatesList* source() const { return events; }

private:
    int* m_calls;
    FilterResult m_answer;
};

} // namespace

class tst_Filters : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void judgesTheNewestEvent_data();
    void judgesTheNewestEvent();
    void sessionSumWrapsAround_data();
    void sessionSumWrapsAround();
    void noEventMeansNoPermission();
    void parametersConvertOrStay();
    void unknownParameterIsLogged();
    void everyFilterDescribesItself_data();
    void everyFilterDescribesItself();
    void descriptionReadsAllOrNothing();
    void chainStopsAtTheFirstRefusal();
    void chainWithoutEventsGivesNoPermission();
    void filtersKeepTheSourceTheyWereAddedWith();
    void chainOwnsItsFilters();
    void chainLogsItsSteps();
};

void tst_Filters::judgesTheNewestEvent_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<int>("limit");
    QTest::addColumn<QString>("events");
    QTest::addColumn<bool>("accepts");

    const auto attempts = [](const char* tag, int limit, const QString& events, bool accepts) {
        QTest::newRow(tag) << "AttemptsFilter"_s << limit << events << accepts;
    };
    attempts("fished", 2, "idling 0, rejected 7, rejected 500, accepting 500"_s, false);
    attempts("one short", 3, "idling 0, rejected 500, rejected 500, accepting 500"_s, true);
    attempts("stacked between", 2,
             "idling 0, rejected 500, stacked 500, rejected 500, accepting 500"_s, true);
    attempts("stacked before", 2,
             "idling 0, stacked 1, rejected 500, rejected 500, accepting 500"_s, false);
    attempts("oldest is not examined", 1, "rejected 500, accepting 500"_s, true);
    attempts("newest counts", 1, "idling 0, rejected 500"_s, false);
    attempts("other note", 1, "idling 0, rejected 500, accepting 100"_s, true);
    attempts("limit 0", 0, "idling 0, accepting 500"_s, false);
    attempts("limit 0, stacked", 0, "idling 0, stacked 500"_s, false);
    attempts("limit 0, one event", 0, "accepting 500"_s, true);

    const auto count = [](const char* tag, int limit, const QString& events, bool accepts) {
        QTest::newRow(tag) << "DenomCountFilter"_s << limit << events << accepts;
    };
    const QString repeated = "idling 0, accepted 500, accepted 500, stacked 500, accepted 100, "
                             "stacked 100, accepting 500"_s;
    count("run counts once", 2, repeated, true);
    count("run counts", 1, repeated, false);
    count("newest of the run is another note", 1,
          "idling 0, accepted 500, accepted 100, accepting 500"_s, true);
    count("two runs", 2, "idling 0, accepted 500, stacked 500, accepted 500, accepting 500"_s,
          false);
    count("newest is accepted", 1, "idling 0, accepted 500"_s, false);
    count("oldest is not counted", 1, "accepted 500, accepting 500"_s, true);
    count("not the capped note", 0, "idling 0, accepting 100"_s, true);
    count("count 0", 0, "idling 0, accepting 500"_s, false);
}

void tst_Filters::judgesTheNewestEvent()
{
    QFETCH(QString, filter);
    QFETCH(QString, events);
    QFETCH(int, limit);
    const LogCapture log;
    StatesList list = session(events);
    const QString limitName = filter == "AttemptsFilter"_s ? "attempts"_s : "count"_s;
    QTEST(verdict(filter, {{"denom"_s, 500}, {limitName, limit}}, &list)
              == AbstractFilter::FILTER_ACCEPT,
          "accepts");
}

void tst_Filters::sessionSumWrapsAround_data()
{
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("sum");
    QTest::addColumn<int>("note");
    QTest::addColumn<bool>("accepts");
    QTest::newRow("reached") << 1000 << 900 << 100 << true;
    QTest::newRow("exceeded") << 1000 << 901 << 100 << false;
    QTest::newRow("wraps to the least") << INT_MIN << INT_MAX << 1 << true;
    QTest::newRow("wraps to the greatest") << 0 << INT_MIN << -1 << false;
}

void tst_Filters::sessionSumWrapsAround()
{
    QFETCH(int, maximum);
    QFETCH(int, sum);
    QFETCH(int, note);
    const LogCapture log;
    StatesList events{DeviceState()};
    events.last().sessionSum = sum;
    events.last().currentNote = note;
    QTEST(verdict("SessionSumFilter"_s, {{"sessionSum"_s, maximum}}, &events)
              == AbstractFilter::FILTER_ACCEPT,
          "accepts");
}

void tst_Filters::noEventMeansNoPermission()
{
    const LogCapture log;
    StatesList empty;
    for (const QString& name : FilterFactory::getFilters()) {
        const auto expected = name == "AcceptFilter"_s ? AbstractFilter::FILTER_ACCEPT
                                                       : AbstractFilter::FILTER_REJECT;
        const QVariantMap params{{"acceptAll"_s, true}, {"denom"_s, 1}, {"sessionSum"_s, 5000}};
        QCOMPARE(verdict(name, params, &empty), expected);
        QCOMPARE(verdict(name, params, nullptr), expected);
    }
    QCOMPARE(verdict("AcceptFilter"_s, {}, nullptr), AbstractFilter::FILTER_REJECT);
}

void tst_Filters::parametersConvertOrStay()
{
    const LogCapture log;
    const std::unique_ptr<AbstractFilter> filter(FilterFactory::createFilter(
        "AttemptsFilter"_s, {{"denom"_s, "1000"_s}, {"attempts"_s, 90.0}}));
    QCOMPARE(filter->property("denom"), QVariant(1000));
    QCOMPARE(filter->property("attempts").toInt(), 90);
    filter->setParams({{"denom"_s, "many"_s}, {"attempts"_s, QVariantList()}, {"extra"_s, 1}});
    QCOMPARE(filter->property("denom"), QVariant(1000));
    QCOMPARE(filter->property("attempts").toInt(), 90);
    QVERIFY(filter->dynamicPropertyNames().isEmpty());
}

void tst_Filters::unknownParameterIsLogged()
{
    const LogCapture log;
    const std::unique_ptr<AbstractFilter> filter(
        FilterFactory::createFilter("AcceptFilter"_s, {{"acceptAll"_s, "1"_s}, {"foo"_s, 5}}));
    QCOMPARE(log.texts(),
             QStringList({"debug: Setting property acceptAll to 1"_s,
                          "debug: Setting property foo to 5"_s,
                          "warning: Property foo does not exists"_s}));
    QCOMPARE(filter->setParams({}), filter.get());
    QCOMPARE(filter->validate(), AbstractFilter::FILTER_ACCEPT);
    QCOMPARE(log.lines().size(), 4);
    const LogCapture::Line written = log.lines().at(2);
    QCOMPARE(written.category, "default"_s);
    QCOMPARE(written.file, "src/filters/abstractfilter.cpp"_s);
    QCOMPARE(written.function,
             "virtualAbstractFilter*AbstractFilter::setParams(constQVariantMap&)"_s);
    QCOMPARE(log.lines().at(3).text, "Accept filter"_s);
}

void tst_Filters::everyFilterDescribesItself_data()
{
    QTest::addColumn<QString>("fields");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("fits");
    QTest::addColumn<QString>("misfits");
    QTest::newRow("SessionSumFilter") << "sessionSum"_s
                                      << "Max session sum filter"_s
                                      << "0 5000"_s
                                      << "-1 x"_s;
    QTest::newRow("AcceptFilter") << "acceptAll"_s
                                  << "Accept filter"_s
                                  << "0 1"_s
                                  << "2 true"_s;
    QTest::newRow("AttemptsFilter") << "denom attempts"_s
                                    << "Max attempts filter"_s
                                    << "1 09 10 090"_s
                                    << "0 11 100"_s;
    QTest::newRow("DenomCountFilter") << "denom count"_s
                                      << "Denomination count filter"_s
                                      << "0 12"_s
                                      << "-1 1.5"_s;
}

void tst_Filters::everyFilterDescribesItself()
{
    const QString name = QString::fromUtf8(QTest::currentDataTag());
    QFETCH(QString, fits);
    QFETCH(QString, misfits);
    QVERIFY(FilterFactory::getFilters().contains(name));
    QTEST(FilterFactory::getFilterDesc(name).section(QLatin1Char('|'), 0, 0), "title");
    QVERIFY(!FilterFactory::getFilterDesc(name).section(QLatin1Char('|'), 1).isEmpty());

    const QList<FieldDescription> fields = FilterFactory::getFieldsDesc(name);
    const std::unique_ptr<AbstractFilter> filter(FilterFactory::createFilter(name, {}));
    QStringList names;
    for (const FieldDescription& field : fields) {
        names += field.name;
        QVERIFY(filter->property(field.name.toUtf8().constData()).isValid());
    }
    QTEST(names.join(QLatin1Char(' ')), "fields");
    const QRegularExpression pattern(fields.last().regexp);
    for (const QString& text : fits.split(QLatin1Char(' ')))
        QVERIFY2(pattern.match(text).hasMatch(), qPrintable(text));
    for (const QString& text : misfits.split(QLatin1Char(' ')))
        QVERIFY2(!pattern.match(text).hasMatch(), qPrintable(text));
}

void tst_Filters::descriptionReadsAllOrNothing()
{
    QCOMPARE(FilterFactory::createFilter("acceptfilter"_s, {}), nullptr);
    QVERIFY(FilterFactory::getFieldsDesc("acceptfilter"_s).isEmpty());
    QVERIFY(FilterFactory::getFilterDesc(QString()).isEmpty());

    const FieldDescription written("a"_s, "b"_s, "c"_s, "d"_s);
    for (const QString& key : written.toMap().keys()) {
        QVariantMap map = written.toMap();
        map.remove(key);
        FieldDescription read;
        QVERIFY(!read.fromMap(map));
        QCOMPARE(read, FieldDescription());
        map[key] = "x"_s;
        QVERIFY(read.fromMap(map));
        QVERIFY(read != written);
    }
}

void tst_Filters::chainStopsAtTheFirstRefusal()
{
    const LogCapture log;
    int refusing = 0;
    int behind = 0;
    StatesList events{DeviceState()};
    FilterChain chain;
    chain.setEvents(&events);
    QCOMPARE(chain.validate(), AbstractFilter::FILTER_ACCEPT);
    chain.add(new CountingFilter(&refusing, AbstractFilter::FILTER_NO_EVENTS))
        ->add(new CountingFilter(&behind));
    QCOMPARE(chain.validate(), AbstractFilter::FILTER_NO_EVENTS);
    QCOMPARE(refusing, 1);
    QCOMPARE(behind, 0);
}

void tst_Filters::chainWithoutEventsGivesNoPermission()
{
    const LogCapture log;
    int calls = 0;
    FilterChain chain;
    QCOMPARE(chain.validate(), AbstractFilter::FILTER_NO_EVENTS);
    chain.add(new CountingFilter(&calls));
    QCOMPARE(chain.validate(), AbstractFilter::FILTER_NO_EVENTS);
    QCOMPARE(calls, 0);
}

void tst_Filters::filtersKeepTheSourceTheyWereAddedWith()
{
    const LogCapture log;
    int calls = 0;
    StatesList first{DeviceState()};
    StatesList second{DeviceState()};
    FilterChain chain;
    auto* const early = new CountingFilter(&calls);
    auto* const late = new CountingFilter(&calls);
    chain.setEvents(&first)->add(early)->setEvents(&second)->add(late);
    QCOMPARE(early->source(), &first);
    QCOMPARE(late->source(), &second);
    QCOMPARE(chain.validate(), AbstractFilter::FILTER_ACCEPT);
    QCOMPARE(calls, 2);
}

void tst_Filters::chainOwnsItsFilters()
{
    const LogCapture log;
    const FilterManager manager;
    int first = 0;
    int second = 0;
    {
        FilterChain chain;
        chain.add(new CountingFilter(&first))->clear()->add(new CountingFilter(&second));
        QCOMPARE(first, -100);
        QCOMPARE(second, 0);
    }
    QCOMPARE(first, -100);
    QCOMPARE(second, -100);
}

void tst_Filters::chainLogsItsSteps()
{
    const LogCapture log;
    StatesList events{DeviceState()};
    {
        FilterChain chain;
        int calls = 0;
        chain.setEvents(&events)->add(new CountingFilter(&calls, AbstractFilter::FILTER_REJECT));
        chain.validate();
    }
    QCOMPARE(log.texts(),
             QStringList(
                 {"debug: Creating filter chain"_s, "debug: Setting events source for the chain"_s,
                  "debug: Append to chain: counting"_s, "debug: Reject raised by counting"_s,
                  "debug: Deleting filter chain"_s, "debug: Clearing chain"_s}));
    const QStringList functions{"FilterChain::FilterChain()"_s,
                                "FilterChain*FilterChain::setEvents(StatesList*)"_s,
                                "FilterChain*FilterChain::add(PAbstractFilter)"_s,
                                "AbstractFilter::FilterResultFilterChain::validate()"_s,
                                "FilterChain::~FilterChain()"_s,
                                "FilterChain*FilterChain::clear()"_s};
    for (int i = 0; i < functions.size(); ++i) {
        QCOMPARE(log.lines().at(i).file, "src/filters/filterchain.cpp"_s);
        QCOMPARE(log.lines().at(i).function, functions.at(i));
    }
}

QTEST_APPLESS_MAIN(tst_Filters)
#include "tst_filters.moc"
