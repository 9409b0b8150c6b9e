// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/settingsedit.h"

#include <QObject>

#include <memory>
#include <vector>

/// A file that is not any more what was read from it.
struct ChangedOnDisk : Fault
{
};

/// A settings list that is open in the window: its text, what was done to it, what is wrong with
/// it. Every change is one of SettingsEdit, so that the text is what the command line would make of
/// it.
class SettingsDocument : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Throws Fault, which names the file; what was open stays open.
    void open(const QString& fileName);

    bool isOpen() const { return !m_steps.empty(); }
    QString fileName() const { return m_fileName; }
    bool isModified() const { return isOpen() && text() != m_saved->text(); }

    /// Everything below needs an open list.
    const ArrayFile& file() const { return m_steps[m_now].edit->file(); }
    QByteArray text() const { return file().text(); }
    const SettingsList& list() const { return *m_list; }
    const QList<SettingsFinding>& findings() const { return m_findings; }

    /// The findings that the file has not: with errors among them it is not written.
    QList<SettingsFinding> newFindings() const;

    /// What the filters do that the settings imply, or why there are none.
    QStringList filters() const;

    /// The path of the setting that a finding is about, as list().used() has it; empty without one.
    QString settingOf(const SettingsFinding& finding) const;

    /// The text that a value is shown with: as the list has it, or the default.
    QString shownText(const SettingsList::Used& used) const;

    /// Values that are set one after the other for one setting are one step, until it is closed.
    void set(const QString& path, const QString& value);
    void closeStep();

    void unset(const QString& path);
    int addDevice(const QString& model); ///< returns its index
    void removeDevice(int device);
    void moveDevice(int device, int to);

    bool canUndo() const { return m_now > 0; }
    bool canRedo() const { return m_now + 1 < m_steps.size(); }

    /// Both return the path that the step was about; empty where it was about a device.
    QString undo();
    QString redo();

    /// Throws Fault, which names them, when there are errors among newFindings().
    void requireSound() const;

    /// Throws ChangedOnDisk, or Fault where the file cannot be read.
    void requireUnchanged() const;

    /// What a file has that would be overwritten; nothing of one that is not there. Throws Fault
    /// where it cannot be read.
    static QByteArray textOf(const QString& fileName);

    /// Writes the file whole or leaves it as it is. Throws as requireUnchanged(), and Fault when it
    /// cannot be written or the list would have new errors.
    void save();

    /// The same for another file, which is then the one that is open.
    void saveAs(const QString& fileName);

Q_SIGNALS:
    void changed();

private:
    struct Step
    {
        std::shared_ptr<const SettingsEdit> edit;
        QByteArray before; // what the edit began with
        QString path = {}; // the setting that was set
        bool isClosed = true;
    };

    template <typename Action>
    void change(std::size_t from, Action action, const QString& path = {});
    void begin(ArrayFile saved);
    void read();

    QString m_fileName;
    std::unique_ptr<const ArrayFile> m_saved;
    std::vector<Step> m_steps; // the first is the list as it was opened
    std::size_t m_now = 0;
    std::unique_ptr<const SettingsList> m_list;
    QList<SettingsFinding> m_findings;
};
