// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "acceptorsettings.h"
#include "filterchain.h"
#include "filterfactory.h"
#include "filtermanager.h"
#include "logcapture.h"
#include "testtable.h"

#include <QRegularExpression>

#include <memory>

namespace {

// A session, oldest state first: "<state> <note> <session sum>, ...".
StatesList session(const QString& text)
{
    StatesList events;
    for (const QString& event : text.split(", "_s, Qt::SkipEmptyParts)) {
        const QStringList words = event.split(QLatin1Char(' '));
        DeviceState state;
        DeviceState::stateFromString(words.at(0), state.state);
        state.currentNote = words.at(1).toInt();
        state.sessionSum = words.value(2).toInt();
        events.append(state);
    }
    return events;
}

// Counts its calls, and takes 100 off when it is deleted.
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
    void judgesTheNewestEvent_data()
    {
        // The guarded note is 500.
        addRows(R"(
            reject | AttemptsFilter   | 2 | idling 0, rejected 7, rejected 500, accepting 500
            accept | AttemptsFilter   | 3 | idling 0, rejected 7, rejected 500, accepting 500
            accept | AttemptsFilter   | 2 | idling 0, rejected 9, stacked 9, rejected 9, accepting 500
            reject | AttemptsFilter   | 2 | idling 0, stacked 9, rejected 9, rejected 9, accepting 500
            reject | AttemptsFilter   | 2 | idling 0, rejected 9, accepting 9, returning 9, returned 9, rejected 9, accepting 500
            accept | AttemptsFilter   | 1 | rejected 500, accepting 500
            reject | AttemptsFilter   | 1 | idling 0, rejected 500
            accept | AttemptsFilter   | 1 | idling 0, rejected 500, accepting 100
            reject | AttemptsFilter   | 0 | idling 0, accepting 500
            reject | AttemptsFilter   | 0 | idling 0, stacked 500
            accept | AttemptsFilter   | 0 | accepting 500
            reject | AttemptsFilter   | 0 |
            accept | DenomCountFilter | 2 | idling 0, accepted 500, accepted 500, stacked 500, accepted 9, stacked 9, accepting 500
            reject | DenomCountFilter | 1 | idling 0, accepted 500, accepted 500, stacked 500, accepted 9, stacked 9, accepting 500
            accept | DenomCountFilter | 1 | idling 0, accepted 500, accepted 9, accepting 500
            reject | DenomCountFilter | 2 | idling 0, accepted 500, stacked 500, accepted 500, accepting 500
            reject | DenomCountFilter | 1 | idling 0, accepted 500
            accept | DenomCountFilter | 1 | accepted 500, accepting 500
            accept | DenomCountFilter | 0 | idling 0, accepting 100
            reject | DenomCountFilter | 0 | idling 0, accepting 500
            reject | DenomCountFilter | 0 |
            accept | SessionSumFilter | 1000 | accepting 100 900
            reject | SessionSumFilter | 1000 | accepting 100 901
            accept | SessionSumFilter | -2147483648 | accepting 1 2147483647
            reject | SessionSumFilter | 0 | accepting -1 -2147483648
            reject | SessionSumFilter | 0 |
            accept | AcceptFilter     | 1 |
            reject | AcceptFilter     | 0 | idling 0)"_s);
    }

    void judgesTheNewestEvent()
    {
        const auto [verdict, name, limit, states] = cells<4>();
        const LogCapture log;
        const QString parameter = FilterFactory::getFieldsDesc(name).constLast().name;
        StatesList events = session(states);
        const std::unique_ptr<AbstractFilter> filter(
            FilterFactory::createFilter(name, {{"denom"_s, 500}, {parameter, limit}}));
        const int expected = verdict == "accept"_s ? 0 : 1;
        QCOMPARE(int(filter->setEvents(&events)->validate()), expected);
        if (events.isEmpty())
            QCOMPARE(int(filter->setEvents(nullptr)->validate()), expected);
    }

    void parametersConvertOrStay()
    {
        const LogCapture log;
        const std::unique_ptr<AbstractFilter> filter(FilterFactory::createFilter(
            "AttemptsFilter"_s, {{"denom"_s, "1000"_s}, {"attempts"_s, 90.0}}));
        filter->setParams({{"denom"_s, "many"_s}, {"attempts"_s, QVariantList()}, {"foo"_s, 1}});
        QCOMPARE(filter->property("denom"), QVariant(1000));
        QCOMPARE(filter->property("attempts").toInt(), 90);
        QVERIFY(filter->dynamicPropertyNames().isEmpty());
        QCOMPARE(filter->setParams({}), filter.get());
        // A null real is no number, least of all 0, which would refuse everything.
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
        const QVariant null(QVariant::Double);
#else
        const QVariant null(QMetaType(QMetaType::Double));
#endif
        const std::unique_ptr<AbstractFilter> accept(
            FilterFactory::createFilter("AcceptFilter"_s, {{"acceptAll"_s, true}}));
        accept->setParams({{"acceptAll"_s, null}});
        filter->setParams({{"attempts"_s, null}});
        QVERIFY(accept->property("acceptAll").toBool());
        QCOMPARE(filter->property("attempts").toInt(), 90);
        filter->setParams({{"attempts"_s, "200"_s}});
        QCOMPARE(filter->property("attempts").toInt(), -56);
        QCOMPARE(log.texts().mid(4, 2),
                 QStringList({"debug: Setting property foo to 1"_s,
                              "warning: Property foo does not exists"_s}));
        QCOMPARE(log.places().constLast(),
                 "default src/filters/abstractfilter.cpp "
                 "virtualAbstractFilter*AbstractFilter::setParams(constQVariantMap&)"_s);
    }

    void everyFilterDescribesItself_data()
    {
        const QString rows = R"(
            SessionSumFilter | sessionSum     | Max session sum filter    | 0 5000      | -1 x
            AcceptFilter     | acceptAll      | Accept filter             | 0 1         | 2 true
            AttemptsFilter   | denom attempts | Max attempts filter       | 1 09 10 090 | 0 11 100
            DenomCountFilter | denom count    | Denomination count filter | 0 12        | -1 1.5)"_s;
        addRows(rows);
        for (const QString& name : FilterFactory::getFilters())
            QVERIFY2(rows.contains(name), qPrintable(name));
    }

    void everyFilterDescribesItself()
    {
        const auto [name, properties, title, good, bad] = cells<5>();
        QVERIFY(FilterFactory::getFilters().contains(name));
        QCOMPARE(FilterFactory::getFilterDesc(name).section(QLatin1Char('|'), 0, 0), title);
        const QList<FieldDescription> fields = FilterFactory::getFieldsDesc(name);
        const std::unique_ptr<AbstractFilter> filter(FilterFactory::createFilter(name, {}));
        QStringList names;
        for (const FieldDescription& field : fields) {
            names += field.name;
            QVERIFY(filter->property(field.name.toUtf8().constData()).isValid());
        }
        QCOMPARE(names.join(QLatin1Char(' ')), properties);
        const QRegularExpression pattern(fields.last().regexp);
        for (const QString& text : good.split(QLatin1Char(' ')))
            QVERIFY2(pattern.match(text).hasMatch(), qPrintable(text));
        for (const QString& text : bad.split(QLatin1Char(' ')))
            QVERIFY2(!pattern.match(text).hasMatch(), qPrintable(text));
    }

    void unknownNamesGiveNothing()
    {
        QCOMPARE(FilterFactory::createFilter("acceptfilter"_s, {}), nullptr);
        QVERIFY(FilterFactory::getFieldsDesc("acceptfilter"_s).isEmpty());
        QVERIFY(FilterFactory::getFilterDesc(QString()).isEmpty());
    }

    // acceptAll, maxSumm and the text of the limits, then what the filters hold.
    void configurationImpliesItsFilters_data()
    {
        addRows(R"(
            1 |                    0 | []                                              | acceptAll 1
            0 |                    1 | []                                              | acceptAll 0, sessionSum 1
            1 |                   -1 | []                                              | acceptAll 1
            1 | -9223372036854775808 | []                                              | acceptAll 1
            1 |           2147483647 | []                                              | acceptAll 1, sessionSum 2147483647
            1 |           5000000000 | []                                              | acceptAll 1, sessionSum 2147483647
            1 |  9223372036854775807 | []                                              | acceptAll 1, sessionSum 2147483647
            1 |                    9 | [{"denom":50,"attempts":3},{"denom":10,"attempts":"1"},{"denom":50,"attempts":2}] | acceptAll 1, denom 50 attempts 3, denom 10 attempts 1, denom 50 attempts 2, sessionSum 9
            1 |                    0 | [{"denom":5,"attempts":127},{"denom":5,"attempts":200}]   | acceptAll 1, denom 5 attempts 127, denom 5 attempts 127
            1 |                    0 | [{"denom":5,"attempts":-128},{"denom":5,"attempts":-200}] | acceptAll 1, denom 5 attempts -128, denom 5 attempts -128
            1 |                    0 | [{"denom":2147483647,"attempts":2147483647}]    | acceptAll 1, denom 2147483647 attempts 127
            1 |                    0 | [{"denom":-2147483648,"attempts":-2147483648}]  | acceptAll 1, denom -2147483648 attempts -128
            1 |                    0 | [{"denom":"x","attempts":5000000000},{},7,{"denom":7}] | acceptAll 1, denom 0 attempts 0, denom 7 attempts 1
            x |                    x | {"denom":5}                                     | acceptAll 0
            1 |                    0 | [{"denom":5                                     | acceptAll 1)"_s);
    }

    void configurationImpliesItsFilters()
    {
        const auto [acceptAll, maxSumm, limits, expected] = cells<4>();
        const LogCapture log;
        AcceptorSettings settings;
        settings.updateValue("acceptor_common"_s, {}, "acceptAll"_s, acceptAll);
        settings.updateValue("acceptor_common"_s, {}, "maxSumm"_s, maxSumm);
        settings.updateValue("acceptor_common"_s, {}, "attempts_filter_settings"_s, limits);
        const QList<AbstractFilter*> implied = FilterFactory::createFilters();
        QStringList held;
        for (const AbstractFilter* const filter : implied) {
            QStringList words;
            for (const FieldDescription& field : filter->getFieldsDescription()) {
                const int value = filter->property(field.name.toUtf8().constData()).toInt();
                words += field.name + QLatin1Char(' ') + QString::number(value);
            }
            held += words.join(QLatin1Char(' '));
        }
        qDeleteAll(implied);
        QCOMPARE(held.join(", "_s), expected);
    }

    void descriptionReadsAllOrNothing()
    {
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

    void chainStopsAtTheFirstRefusal()
    {
        const LogCapture log;
        int first = 0;
        int second = 0;
        StatesList events{DeviceState()};
        FilterChain chain;
        QCOMPARE(chain.add(new CountingFilter(&first))->validate(),
                 AbstractFilter::FILTER_NO_EVENTS);
        QCOMPARE(first, 0);
        QCOMPARE(chain.clear()->setEvents(&events)->validate(), AbstractFilter::FILTER_ACCEPT);
        QCOMPARE(first, -100);
        chain.add(new CountingFilter(&first, AbstractFilter::FILTER_NO_EVENTS))
            ->add(new CountingFilter(&second));
        QCOMPARE(chain.validate(), AbstractFilter::FILTER_NO_EVENTS);
        QCOMPARE(first, -99);
        QCOMPARE(second, 0);
    }

    void filtersKeepTheSourceTheyWereAddedWith()
    {
        const LogCapture log;
        const FilterManager manager;
        int calls = 0;
        StatesList first{DeviceState()};
        StatesList second{DeviceState()};
        {
            FilterChain chain;
            auto* const early = new CountingFilter(&calls);
            auto* const late = new CountingFilter(&calls);
            chain.setEvents(&first)->add(early)->setEvents(&second)->add(late);
            QCOMPARE(early->source(), &first);
            QCOMPARE(late->source(), &second);
            QCOMPARE(chain.validate(), AbstractFilter::FILTER_ACCEPT);
            QCOMPARE(calls, 2);
        }
        QCOMPARE(calls, 2 - 200);
    }

    void chainLogsItsSteps()
    {
        const LogCapture log;
        StatesList events{DeviceState()};
        {
            FilterChain chain;
            chain.setEvents(&events)->add(FilterFactory::createFilter("AcceptFilter"_s, {}));
            chain.validate();
        }
        QString lines;
        for (int i = 0; i < log.texts().size(); ++i)
            lines += log.texts().at(i) + QLatin1Char('\n') + log.places().at(i) + QLatin1Char('\n');
        QCOMPARE(lines, R"(debug: Creating filter chain
default src/filters/filterchain.cpp FilterChain::FilterChain()
debug: Setting events source for the chain
default src/filters/filterchain.cpp FilterChain*FilterChain::setEvents(StatesList*)
debug: Append to chain: accept filter
default src/filters/filterchain.cpp FilterChain*FilterChain::add(PAbstractFilter)
debug: Accept filter
default src/filters/acceptfilter.cpp virtualAbstractFilter::FilterResultAcceptFilter::validate()
debug: Reject raised by accept filter
default src/filters/filterchain.cpp AbstractFilter::FilterResultFilterChain::validate()
debug: Deleting filter chain
default src/filters/filterchain.cpp FilterChain::~FilterChain()
debug: Clearing chain
default src/filters/filterchain.cpp FilterChain*FilterChain::clear()
)"_s);
    }
};

QTEST_APPLESS_MAIN(tst_Filters)
#include "tst_filters.moc"
