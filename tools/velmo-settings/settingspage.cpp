// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "settingspage.h"

#include "acceptorsettings.h"
#include "settingfield.h"
#include "settingsdocument.h"
#include "terminal/velmo.h"
#include "text/devicename.h"

#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>

namespace {

using S = AcceptorSettings;
using Used = SettingsList::Used;

// The sections of a form in their order, by the group or the sub-group of a device. What has no row
// is of the device's protocol.
const struct
{
    const QString& group;
    const char* title;
} sections[] = {
    {S::SERVICE_SECTION, QT_TRANSLATE_NOOP("Velmo", "Service")},
    {S::ACCEPTOR_COMMON_SECTION, QT_TRANSLATE_NOOP("Velmo", "Acceptance of money")},
    {S::DISPENSER_SECTION, QT_TRANSLATE_NOOP("Velmo", "Dispenser")},
    {S::DEVICE_SECTION, QT_TRANSLATE_NOOP("Velmo", "Device")},
    {S::HARDWARE_SECTION, QT_TRANSLATE_NOOP("Velmo", "Connection")},
    {S::DEBUG_SECTION, QT_TRANSLATE_NOOP("Velmo", "Log")},
};
constexpr int widestLabel = 170;
constexpr int sectionOfProtocol = int(std::size(sections));

int sectionIndex(const ServiceSetting& setting)
{
    const QString group =
        setting.device() ? setting.group().section(QLatin1Char('/'), 1) : setting.group();
    const auto found = std::find_if(std::begin(sections), std::end(sections),
                                    [&group](const auto& row) { return row.group == group; });
    return int(found - std::begin(sections));
}

QString sectionTitle(int index)
{
    return Velmo::tr(index == sectionOfProtocol ? QT_TRANSLATE_NOOP("Velmo", "Protocol")
                                                : sections[index].title);
}

// Those of a page in the order of its form.
QVector<Used> usedOf(const SettingsList& list, std::optional<int> device)
{
    QVector<Used> found;
    std::copy_if(list.used().begin(), list.used().end(), std::back_inserter(found),
                 [device](const Used& used) { return used.setting.device() == device; });
    std::stable_sort(found.begin(), found.end(), [](const Used& a, const Used& b) {
        return sectionIndex(a.setting) < sectionIndex(b.setting);
    });
    return found;
}

} // namespace

SettingsPage::SettingsPage(SettingsDocument& document, QWidget* parent)
    : QScrollArea(parent)
    , m_document(document)
{
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    connect(&document, &SettingsDocument::changed, this, &SettingsPage::refresh);
}

QString SettingsPage::title(const SettingsDocument& document, std::optional<int> device)
{
    if (!device)
        return Velmo::tr("Common settings");
    const SettingsList& list = document.list();
    const ServiceSetting name =
        ServiceSetting::find(deviceGroup(*device, S::DEVICE_SECTION), S::DEVICE_NAME);
    const QString given = list.used(name).value.toString().simplified();
    const int model = list.model(*device);
    const bool isUnknown = modelName(model).isEmpty() && given.isEmpty();
    return Velmo::tr("Device %1: %2")
        .arg(QString::number(*device),
             isUnknown ? Velmo::tr("unknown model") : deviceName(model, given));
}

void SettingsPage::showDevice(std::optional<int> device)
{
    m_device = device;
    m_paths.clear();
    refresh();
    ensureVisible(0, 0);
}

void SettingsPage::refresh()
{
    const QVector<Used> shown = usedOf(m_document.list(), m_device);
    QStringList paths;
    for (const Used& used : shown)
        paths += used.setting.path();
    if (paths != m_paths) {
        const SettingField* const current = currentField();
        const QString path = current ? current->path() : QString();
        build(paths);
        if (m_fields.contains(path))
            m_fields.value(path)->control()->setFocus();
    }
    QHash<QString, QList<SettingsFinding>> findings;
    for (const SettingsFinding& finding : m_document.findings())
        findings[m_document.settingOf(finding)] += finding;
    for (const Used& used : shown) {
        m_fields.value(used.setting.path())
            ->showValue(used, m_document.shownText(used), findings.value(used.setting.path()));
    }
    if (auto* const heading = widget()->findChild<QLabel*>(QStringLiteral("heading")))
        heading->setText(title(m_document, m_device));
}

void SettingsPage::build(const QStringList& paths)
{
    m_paths = paths;
    m_fields.clear();
    auto* const form = new QWidget;
    auto* const layout = new QVBoxLayout(form);
    auto* const heading = new QLabel(form);
    heading->setObjectName(QStringLiteral("heading"));
    heading->setTextFormat(Qt::PlainText);
    QFont font = heading->font();
    font.setPointSizeF(font.pointSizeF() * 1.3);
    font.setBold(true);
    heading->setFont(font);
    layout->addWidget(heading);
    int section = -1;
    QVBoxLayout* rows = nullptr;
    int labelWidth = 0;
    for (const Used& used : usedOf(m_document.list(), m_device)) {
        const int index = sectionIndex(used.setting);
        if (index != section) {
            auto* const box = new QGroupBox(sectionTitle(index), form);
            rows = new QVBoxLayout(box);
            layout->addWidget(box);
            section = index;
        }
        auto* const field = new SettingField(used);
        rows->addWidget(field);
        m_fields.insert(field->path(), field);
        labelWidth = std::max(labelWidth, fontMetrics().horizontalAdvance(field->label()->text()));
        connect(field, &SettingField::edited, this, &SettingsPage::edited);
        connect(field, &SettingField::finished, &m_document, &SettingsDocument::closeStep);
        connect(field, &SettingField::menuAsked, this, &SettingsPage::menuAsked);
    }
    for (SettingField* const field : std::as_const(m_fields))
        field->label()->setFixedWidth(std::min(labelWidth, widestLabel) + 4);
    layout->addStretch();
    // One of its fields may be what had this made.
    QWidget* const old = takeWidget();
    if (old) {
        old->hide();
        old->deleteLater();
    }
    setWidget(form);
    // In the order of the form, and before what stands under it.
    QWidget* last = m_predecessor;
    for (const QString& path : paths) {
        for (QWidget* const control : m_fields.value(path)->findChildren<QWidget*>()) {
            // The list of a combo box stands in a window of its own.
            if ((control->focusPolicy() & Qt::TabFocus) && control->window() == window()) {
                setTabOrder(last, control);
                last = control;
            }
        }
    }
}

SettingField* SettingsPage::fieldOf(const QWidget* widget) const
{
    for (; widget; widget = widget->parentWidget()) {
        if (auto* const field = m_fields.value(widget->objectName()); field == widget && field)
            return field;
    }
    return nullptr;
}

void SettingsPage::goToFirst()
{
    if (!m_paths.isEmpty())
        goTo(m_paths.constFirst());
}

void SettingsPage::goTo(const QString& path)
{
    SettingField* const field = m_fields.value(path);
    if (!field)
        return;
    field->control()->setFocus(Qt::OtherFocusReason);
    ensureWidgetVisible(field);
}

void SettingsPage::endEditing()
{
    for (SettingField* const field : std::as_const(m_fields))
        field->endEditing();
    if (m_document.isOpen())
        refresh();
}
