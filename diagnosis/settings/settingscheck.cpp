// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "settings/settingscheck.h"

#include "acceptorattemptfilteritem.h"
#include "acceptorsettings.h"
#include "droutemapitem.h"
#include "filterfactory.h"
#include "settings/settingslist.h"
#include "text/diagnosis.h"
#include "json/jsonreader.h"

#include <algorithm>
#include <tuple>

namespace {

using S = AcceptorSettings;

QString shortened(const QString& text)
{
    constexpr int mostShown = 40;
    return text.size() <= mostShown ? text : text.left(mostShown) + QStringLiteral("...");
}

QString rangeText(const SettingDescription& setting)
{
    return Diagnosis::tr("out of its range %1 to %2")
        .arg(setting.minimum().toString(), setting.maximum().toString());
}

// What is wrong with a value that is not accepted, for each kind.
QString faultOf(const SettingDescription& setting, const QString& text)
{
    bool isNumber = false;
    text.toLongLong(&isNumber);
    switch (setting.kind()) {
    case SettingDescription::Number:
        return isNumber ? rangeText(setting) : Diagnosis::tr("no whole number");
    case SettingDescription::Switch:
        return Diagnosis::tr("neither 0 nor 1");
    case SettingDescription::Choice:
        return Diagnosis::tr("none of %1").arg(setting.choices().join(QStringLiteral(", ")));
    case SettingDescription::AttemptsLimits:
        return Diagnosis::tr("no JSON array of limits, each with \"denom\" and \"attempts\" of 1 "
                             "or more");
    case SettingDescription::RouteMap:
        return Diagnosis::tr("no JSON array of whole routes; %n can be read", nullptr,
                             int(DRouteMap::fromJson(text).size()));
    default:
        return Diagnosis::tr("no address: the device is not found");
    }
}

class Check
{
    using Finding = SettingsFinding;

public:
    explicit Check(const ArrayFile& file)
        : m_file(file)
        , m_list(file)
    {
    }

    QList<Finding> findings()
    {
        for (int i = 0; i < m_list.elements().size(); ++i)
            checkElement(i);
        checkCount();
        for (auto device = m_list.devices().begin(); device != m_list.devices().end(); ++device)
            checkDevice(device.key(), device.value());
        for (const SettingsList::Used& used : m_list.used())
            checkUsed(used);
        // What is missing stands at the end.
        std::stable_sort(m_findings.begin(), m_findings.end(), [](const auto& a, const auto& b) {
            return unsigned(a.element) < unsigned(b.element);
        });
        return m_findings;
    }

private:
    // @param device of what is not in the list; an element has its own
    void report(Finding::Level level, int element, const QString& path, const QString& text,
                std::optional<int> device = {})
    {
        if (element >= 0)
            device = m_list.elements().at(element).device;
        m_findings += Finding{level, element, device, path, text, {}, text};
    }

    // What the last text says of devices, for a text that names any.
    void tellDevicesOfLast(std::optional<int> otherDevice, const QString& fault)
    {
        m_findings.last().otherDevice = otherDevice;
        m_findings.last().fault = fault;
    }

    void checkElement(int index)
    {
        const SettingsList::Element& element = m_list.elements().at(index);
        for (const char* const key : {"group", "key", "value"}) {
            if (m_file.isDoubled(index, QLatin1String(key))) {
                report(Finding::Error, index, element.path(),
                       Diagnosis::tr("has \"%1\" more than once: which one counts is not certain")
                           .arg(QLatin1String(key)));
            }
        }
        if (!element.hasGroup) {
            const bool isMeant = !element.key.isEmpty();
            return report(isMeant ? Finding::Error : Finding::Warning, index, element.key,
                          Diagnosis::tr("is skipped: no \"group\""));
        }
        if (!element.setting.isValid()) {
            const bool isMeant = ServiceSetting::isGroupKnown(element.group);
            const QString fault = Diagnosis::tr("is ignored");
            report(isMeant ? Finding::Error : Finding::Warning, index, element.path(),
                   fault + ServiceSetting::nearestKnown(element.path()));
            return tellDevicesOfLast({}, fault);
        }
        const SettingsList::Used used = m_list.used(element.setting);
        checkPlace(index, element, used);
        // What does not count may have any value.
        if (used.element == index)
            checkValue(index, element, used.isForDevice ? Finding::Error : Finding::Warning);
    }

    void checkPlace(int index, const SettingsList::Element& element, const SettingsList::Used& used)
    {
        const QString path = element.path();
        if (used.element != index) {
            const bool isSame = used.setting.readAs(element.text()) == used.value;
            return isSame ? report(Finding::Warning, index, path,
                                   Diagnosis::tr("is set again by a later element, to the same"))
                          : report(Finding::Error, index, path,
                                   Diagnosis::tr("does not count: a later element sets it again"));
        }
        if (!used.isForDevice) {
            report(Finding::Warning, index, path,
                   Diagnosis::tr("has no effect: not for a device of this model and interface"));
        } else if (element.group != used.setting.group() || isOtherKey(element, used.setting)) {
            const QString readAs = Diagnosis::tr("is read as %1");
            report(Finding::Warning, index, path, readAs.arg(used.setting.path()));
            tellDevicesOfLast({}, readAs.arg(used.setting.forDevice(0).path()));
        }
    }

    // Another setting that is kept in the same place, not another spelling.
    static bool isOtherKey(const SettingsList::Element& element, const ServiceSetting& setting)
    {
        return ServiceSetting::find(element.group, element.key).key() != setting.key();
    }

    void checkValue(int index, const SettingsList::Element& element, Finding::Level level)
    {
        const ServiceSetting& setting = element.setting;
        const QString text = element.text();
        const QString read = setting.readAs(text);
        if (element.value.isNull() || !element.value.canConvert<QString>()) {
            return report(level, index, element.path(),
                          Diagnosis::tr("has no text or number: reads as \"%1\"").arg(read));
        }
        if (!setting.accepts(text)) {
            QString fault =
                Diagnosis::tr("\"%1\" is %2").arg(shortened(text), faultOf(setting, text));
            if (read != text)
                fault += Diagnosis::tr(": reads as \"%1\"").arg(shortened(read));
            report(level, index, element.path(), fault);
        }
        if (setting.kind() == SettingDescription::AttemptsLimits)
            checkLimits(index, read, level);
        else if (setting.key() == S::MAX_SUMM)
            checkSum(index, read);
    }

    // The filters have fewer bits than the settings.
    void checkLimits(int index, const QString& read, Finding::Level level)
    {
        const QVariantList limits = JsonReader::readList(read);
        for (const QVariant& map : limits) {
            AcceptorAttemptFilterItem limit;
            limit.loadFromMap(map.toMap());
            const int held = heldByLast("attempts", {limit}, 0);
            if (held != limit.attempts()) {
                report(level, index, m_list.elements().at(index).path(),
                       Diagnosis::tr("the filter cannot hold %1 attempts (\"denom\" %2): it takes "
                                     "%3")
                           .arg(QString::number(limit.attempts()), QString::number(limit.denom()),
                                QString::number(held)));
            }
        }
    }

    void checkSum(int index, const QString& read)
    {
        const qint64 sum = read.toLongLong();
        if (sum <= 0)
            return; // no filter
        const int held = heldByLast("sessionSum", {}, sum);
        if (held != sum) {
            report(Finding::Warning, index, m_list.elements().at(index).path(),
                   Diagnosis::tr("the filter cannot hold the sum %1: it takes %2")
                       .arg(QString::number(sum), QString::number(held)));
        }
    }

    // A parameter of the last of the filters that these settings imply.
    static int heldByLast(const char* param, const QList<AcceptorAttemptFilterItem>& limits,
                          qint64 maxSumm)
    {
        const QList<AbstractFilter*> implied = FilterFactory::createFilters(true, limits, maxSumm);
        const int held = implied.constLast()->property(param).toInt();
        qDeleteAll(implied);
        return held;
    }

    void checkCount()
    {
        const QString path = S::SERVICE_SECTION + QLatin1Char('/') + S::DEVICE_COUNT;
        const ServiceSetting setting = ServiceSetting::require(path);
        if (!m_list.used(setting).isListed()) {
            report(Finding::Error, -1, path,
                   Diagnosis::tr("is missing: the service drives no device"));
        }
        const int count = m_list.deviceCount();
        if (!setting.accepts(QString::number(count)))
            return; // one fault is enough
        QList<int> missing;
        for (int device = 0; device < count; ++device) {
            if (!m_list.devices().contains(device))
                missing += device;
        }
        constexpr int mostNamed = 16;
        for (const int device : missing.mid(0, mostNamed)) {
            report(Finding::Error, -1, deviceGroup(device),
                   Diagnosis::tr("is missing, but below the device count"), device);
        }
        if (missing.size() > mostNamed) {
            const QString more =
                Diagnosis::tr("and more up to %1 are missing, but below the device count");
            report(Finding::Error, -1, deviceGroup(missing.at(mostNamed)),
                   more.arg(deviceGroup(missing.constLast())), missing.at(mostNamed));
            tellDevicesOfLast(missing.constLast(), more);
        }
    }

    void checkDevice(int device, int firstElement)
    {
        if (device < 0 || device >= m_list.deviceCount()) {
            report(Finding::Error, firstElement, deviceGroup(device),
                   Diagnosis::tr("is not below the device count: the service does not drive it"));
        }
        checkAddress(device, firstElement);
    }

    // Devices of one address, each against those before it.
    void checkAddress(int device, int firstElement)
    {
        const auto used = [this, device](const QString& key) {
            return m_list.used(ServiceSetting::find(deviceGroup(device, S::HARDWARE_SECTION), key));
        };
        const SettingsList::Used host = used(S::TCP_HOST);
        const bool isTcp = host.isForDevice && host.value.isValid();
        const SettingsList::Used place = isTcp ? used(S::TCP_PORT) : used(S::PORT_NAME);
        QString address = place.value.toString();
        if (address.isEmpty())
            return;
        if (isTcp) {
            const QString name = host.value.toString().toLower();
            const bool isLocal = name == QLatin1String("localhost");
            address.prepend((isLocal ? QStringLiteral("127.0.0.1") : name) + QLatin1Char(':'));
        } else if (address.startsWith(QLatin1String("/dev/"))) {
            address.remove(0, 5);
        }
        const auto other = m_addresses.constFind(address);
        if (other == m_addresses.constEnd()) {
            m_addresses.insert(address, device);
            return;
        }
        const QString taken = Diagnosis::tr("\"%1\" is where %2 is too");
        report(Finding::Error, place.isListed() ? place.element : firstElement,
               place.setting.path(), taken.arg(address, deviceGroup(*other)));
        tellDevicesOfLast(*other, taken.arg(address, QString()));
    }

    // What the list does not have and the service needs.
    void checkUsed(const SettingsList::Used& used)
    {
        const ServiceSetting& setting = used.setting;
        if (used.isListed() || !setting.device())
            return checkPortLog(used);
        const bool isDefaultSound = setting.accepts(setting.defaultValue().toString());
        const bool isPortSetting = setting.group().endsWith(S::HARDWARE_SECTION)
            && m_list.interfaceType(*setting.device()) != QLatin1String("tcp");
        const bool isNeeded = setting.key() == S::DEVICE_ID || setting.isOfProtocol()
            || setting.key() == S::TCP_HOST || setting.key() == S::TCP_PORT
            || (isPortSetting && !(used.isCertain() && isDefaultSound));
        if (!isNeeded)
            return;
        QString text = Diagnosis::tr("is missing");
        if (!used.value.isValid()) {
            text += Diagnosis::tr(": there is no built-in default, AcceptorSettings has \"%1\"")
                        .arg(setting.unsetValue().toString());
        } else if (!used.isCertain() && isDefaultSound) {
            text += Diagnosis::tr(": the built-in default is \"%1\", "
                                  "AcceptorSettings has \"%2\"")
                        .arg(used.value.toString(), setting.unsetValue().toString());
        }
        report(Finding::Error, -1, setting.path(), text, setting.device());
    }

    void checkPortLog(const SettingsList::Used& used)
    {
        const ServiceSetting& setting = used.setting;
        if (!setting.device() || setting.isOfServiceAlone() || setting.isRead())
            return;
        const ServiceSetting common =
            ServiceSetting::find(S::ACCEPTOR_COMMON_SECTION, setting.key());
        const bool commonIsOn = m_list.used(common).value.toBool();
        if (used.value.toBool() != commonIsOn) {
            report(Finding::Warning, used.element, setting.path(),
                   Diagnosis::tr("differs from %1, which AcceptorSettings writes here")
                       .arg(common.path()),
                   setting.device());
        }
    }

    const ArrayFile& m_file;
    const SettingsList m_list;
    QList<Finding> m_findings;
    QHash<QString, int> m_addresses; // the device that has it
};

// Level, path and text without devices; the devices, of which either may be the one that it is
// told of.
using Sameness =
    std::tuple<SettingsFinding::Level, QString, QString, std::optional<int>, std::optional<int>>;

// A finding by what tells it from others when the devices are numbered as they are now.
Sameness sameness(const SettingsFinding& finding, const DeviceNumbering& numbering)
{
    const auto numbered = [&numbering](const std::optional<int>& device) {
        return device ? std::optional<int>(numbering.now(*device)) : std::nullopt;
    };
    const QString path = finding.device ? finding.path.section(QLatin1Char('/'), 1) : finding.path;
    const auto device = numbered(finding.device);
    const auto other = numbered(finding.otherDevice);
    return {finding.level, path, finding.fault, std::min(device, other), std::max(device, other)};
}

} // namespace

QString SettingsFinding::levelKey() const
{
    return level == Error ? QStringLiteral("error") : QStringLiteral("warning");
}

QString SettingsFinding::line(const ArrayFile& file) const
{
    const QString place = element < 0 ? file.name() : file.place(element);
    const QString levelText = level == Error ? Diagnosis::tr("error") : Diagnosis::tr("warning");
    return QStringLiteral("%1: %2: %3")
        .arg(place, levelText, path.isEmpty() ? text : path + QStringLiteral(": ") + text);
}

QList<SettingsFinding> checkSettings(const ArrayFile& file)
{
    return Check(file).findings();
}

QList<SettingsFinding> newFindings(const ArrayFile& before, const ArrayFile& after,
                                   const DeviceNumbering& numbering)
{
    QList<Sameness> known;
    for (const SettingsFinding& finding : checkSettings(before))
        known += sameness(finding, numbering);
    QList<SettingsFinding> added;
    for (const SettingsFinding& finding : checkSettings(after)) {
        if (!known.removeOne(sameness(finding, {})))
            added += finding;
    }
    return added;
}
