// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "settingsdocument.h"

#include "filtersfile.h"
#include "terminal/editlock.h"
#include "terminal/output.h"
#include "terminal/velmo.h"
#include "text/textoutput.h"

#include <QBuffer>
#include <QFileInfo>
#include <QLoggingCategory>

#include <algorithm>

namespace {

Q_LOGGING_CATEGORY(category, "velmo.settings")

TextInput openInput(const QString& fileName)
{
    // A pipe would keep the window waiting.
    if (QFileInfo::exists(fileName) && !QFileInfo(fileName).isFile())
        throw Fault{Velmo::tr("%1: is no regular file").arg(fileName)};
    auto file = std::make_unique<QFile>(fileName);
    if (!file->open(QIODevice::ReadOnly))
        throw Fault{QStringLiteral("%1: %2").arg(fileName, file->errorString())};
    return {std::move(file), fileName};
}

ArrayFile readList(const QString& fileName)
{
    TextInput input = openInput(fileName);
    return readSettingsFile(input);
}

// A text that is a settings list, under the name of a file.
ArrayFile listOf(const QByteArray& text, const QString& fileName)
{
    auto buffer = std::make_unique<QBuffer>();
    buffer->setData(text);
    buffer->open(QIODevice::ReadOnly);
    TextInput input(std::move(buffer), fileName);
    return readSettingsFile(input);
}

} // namespace

void SettingsDocument::open(const QString& fileName)
{
    const ArrayFile file = readList(fileName);
    m_fileName = fileName;
    m_steps.clear();
    m_now = 0;
    m_steps.push_back({});
    begin(file);
    qCDebug(category, "opened %s", qUtf8Printable(fileName));
    read();
}

// What is shown now is in the file now.
void SettingsDocument::begin(ArrayFile saved)
{
    m_saved = std::make_unique<const ArrayFile>(std::move(saved));
    Step& step = m_steps[m_now];
    step.edit = std::make_shared<const SettingsEdit>(*m_saved);
    step.before = m_saved->text();
    step.isClosed = true;
}

void SettingsDocument::read()
{
    m_list = std::make_unique<const SettingsList>(file());
    m_findings = checkSettings(file());
    Q_EMIT changed();
}

QList<SettingsFinding> SettingsDocument::newFindings() const
{
    const Step& step = m_steps[m_now];
    // A step of before the file was written knows what the file had then.
    return step.before == m_saved->text() ? step.edit->newFindings()
                                          : ::newFindings(*m_saved, file(), {});
}

QStringList SettingsDocument::filters() const
{
    try {
        return filterSetOf(file(), ListKind::Settings).rules();
    } catch (const Fault& fault) {
        return {fault.message};
    }
}

QString SettingsDocument::settingOf(const SettingsFinding& finding) const
{
    if (finding.element >= 0) {
        const ServiceSetting& setting = m_list->elements().at(finding.element).setting;
        if (setting.isValid() && setting.path() == finding.path)
            return m_list->used(setting).setting.path();
    }
    const auto slash = finding.path.lastIndexOf(QLatin1Char('/'));
    const ServiceSetting setting =
        ServiceSetting::find(finding.path.left(slash), finding.path.mid(slash + 1));
    return slash > 0 && setting.isValid() ? m_list->used(setting).setting.path() : QString();
}

QString SettingsDocument::shownText(const SettingsList::Used& used) const
{
    return used.isListed() ? m_list->elements().at(used.element).text() : used.value.toString();
}

// Does something to the list of a step and makes that the next one, without those that were undone.
template <typename Action>
void SettingsDocument::change(std::size_t from, Action action, const QString& path)
{
    auto edit = std::make_shared<SettingsEdit>(*m_steps[from].edit);
    action(*edit);
    const bool isSame = edit->file().text() == m_steps[from].edit->file().text();
    const bool isSameAsNow = edit->file().text() == text();
    if (isSame && from == m_now)
        return;
    m_steps.resize(from + 1);
    m_now = from;
    if (!isSame) {
        m_steps.push_back({std::move(edit), m_steps[from].before, path, path.isEmpty()});
        ++m_now;
    }
    if (!isSameAsNow)
        read();
}

void SettingsDocument::set(const QString& path, const QString& value)
{
    const Step& last = m_steps[m_now];
    const bool goesOn = m_now > 0 && !last.isClosed && last.path == path && !canRedo();
    change(
        goesOn ? m_now - 1 : m_now,
        [&](SettingsEdit& edit) {
            edit.set({{path, value}});
        },
        path);
}

void SettingsDocument::closeStep()
{
    if (isOpen())
        m_steps[m_now].isClosed = true;
}

void SettingsDocument::unset(const QString& path)
{
    change(m_now, [&path](SettingsEdit& edit) { edit.unset(path); });
}

int SettingsDocument::addDevice(const QString& model)
{
    const int device = m_list->nextDevice();
    change(m_now, [&model](SettingsEdit& edit) { edit.addDevice(model, {}); });
    return device;
}

void SettingsDocument::removeDevice(int device)
{
    change(m_now, [device](SettingsEdit& edit) { edit.removeDevice(device); });
}

void SettingsDocument::moveDevice(int device, int to)
{
    change(m_now, [device, to](SettingsEdit& edit) { edit.moveDevice(device, to); });
}

QString SettingsDocument::undo()
{
    closeStep();
    const QString path = m_steps[m_now].path;
    --m_now;
    read();
    return path;
}

QString SettingsDocument::redo()
{
    ++m_now;
    closeStep();
    read();
    return m_steps[m_now].path;
}

void SettingsDocument::requireUnchanged() const
{
    if (openInput(m_fileName).readAll() != m_saved->text())
        throw ChangedOnDisk{{Velmo::tr("%1: was changed meanwhile; not written").arg(m_fileName)}};
}

QByteArray SettingsDocument::textOf(const QString& fileName)
{
    return QFileInfo::exists(fileName) ? openInput(fileName).readAll() : QByteArray();
}

void SettingsDocument::requireSound() const
{
    const QList<SettingsFinding> findings = newFindings();
    QStringList errors;
    for (const SettingsFinding& finding : findings) {
        if (finding.level == SettingsFinding::Error)
            errors += finding.path + QStringLiteral(": ") + finding.text;
    }
    if (!errors.isEmpty()) {
        throw Fault{Velmo::tr("%1: not written because of these errors:").arg(m_fileName)
                    + QLatin1Char('\n') + errors.join(QLatin1Char('\n'))};
    }
}

void SettingsDocument::save()
{
    requireSound();
    const EditLock lock(m_fileName);
    OutputFile output(m_fileName, {});
    writeText(output.device(), text());
    requireUnchanged();
    output.commit();
    begin(file());
    Q_EMIT changed();
}

void SettingsDocument::saveAs(const QString& fileName)
{
    if (QFileInfo::exists(fileName) && QFileInfo(fileName) == QFileInfo(m_fileName))
        return save();
    requireSound();
    ArrayFile saved = listOf(text(), fileName); // which does not take a list without settings
    OutputFile output(fileName, {});
    writeText(output.device(), text());
    output.commit();
    m_fileName = fileName;
    begin(std::move(saved));
    Q_EMIT changed();
}
