// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include <QAbstractItemModel>
#include <QAccessible>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMetaEnum>
#include <QQmlContext>
#include <QQmlEngine>
#include <QSaveFile>
#include <QTemporaryDir>
#include <QtQuickTest>
#include <QTranslator>
#include <QWindow>

#include <sys/stat.h>

#include <utility>
#include <vector>

// A language that has every text, with a mark before it.
class Marks : public QTranslator
{
public:
    QString translate(const char* /*context*/, const char* text, const char* /*disambiguation*/,
                      int /*n*/) const override
    {
        return QLatin1Char('~') + QString::fromUtf8(text);
    }
    bool isEmpty() const override { return false; }
};

// What tests written in QML cannot do themselves; they know it as "host".
class Host : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE QString path(const QString& name) const { return m_folder.filePath(name); }

    Q_INVOKABLE QString write(const QString& name, const QString& text) const
    {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0)
            qFatal("%s cannot be written", qPrintable(path(name)));
        return file.fileName();
    }

    // As editors do.
    Q_INVOKABLE bool replace(const QString& name, const QString& text) const
    {
        QSaveFile file(path(name));
        return file.open(QIODevice::WriteOnly) && file.write(text.toUtf8()) >= 0 && file.commit();
    }

    Q_INVOKABLE bool remove(const QString& name) const { return QFile::remove(path(name)); }

    Q_INVOKABLE QString makePipe(const QString& name) const
    {
        return mkfifo(qPrintable(path(name)), 0600) == 0 ? path(name) : QString();
    }

    Q_INVOKABLE void setMarked(bool isMarked)
    {
        if (isMarked)
            QCoreApplication::installTranslator(&m_marks);
        else
            QCoreApplication::removeTranslator(&m_marks);
    }

    // Puts what changes in rows of the model into a list, as "2: label help". QML has no way to the
    // third argument of the signal.
    Q_INVOKABLE void listenTo(QAbstractItemModel* model)
    {
        disconnect(m_listening);
        m_changes.clear();
        m_listening = connect(
            model, &QAbstractItemModel::dataChanged, this,
            [this, model](const QModelIndex& first, const QModelIndex&, const QVector<int>& roles) {
                QByteArrayList names;
                for (const int role : roles)
                    names += model->roleNames().value(role);
                m_changes += QStringLiteral("%1: %2")
                                 .arg(first.row())
                                 .arg(QString::fromLatin1(names.join(' ')));
            });
    }

    Q_INVOKABLE QStringList takeChanges() { return std::exchange(m_changes, {}); }

    // What a screen reader finds below the object, as "Button: Pay", each after what it is in.
    Q_INVOKABLE QStringList accessibles(QObject* object) const
    {
        QStringList lines;
        for (QAccessibleInterface* const found : accessiblesIn(object))
            lines += lineOf(found);
        return lines;
    }

    // Presses one of them as a screen reader does.
    Q_INVOKABLE bool press(QObject* object, const QString& line) const
    {
        for (QAccessibleInterface* const found : accessiblesIn(object)) {
            if (lineOf(found) != line)
                continue;
            QAccessibleActionInterface* const actions = found->actionInterface();
            if (!actions
                || !actions->actionNames().contains(QAccessibleActionInterface::pressAction()))
                return false;
            actions->doAction(QAccessibleActionInterface::pressAction());
            return true;
        }
        return false;
    }

    Q_INVOKABLE void repeatKey()
    {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_1, Qt::NoModifier, QStringLiteral("1"), true);
        QCoreApplication::sendEvent(QGuiApplication::focusWindow(), &event);
    }

public Q_SLOTS:
    void qmlEngineAvailable(QQmlEngine* engine)
    {
        engine->rootContext()->setContextProperty(QStringLiteral("host"), this);
    }

private:
    static std::vector<QAccessibleInterface*> accessiblesIn(QObject* object)
    {
        QAccessible::setActive(true);
        std::vector<QAccessibleInterface*> found;
        addAccessibles(QAccessible::queryAccessibleInterface(object), &found);
        return found;
    }

    static void addAccessibles(QAccessibleInterface* parent,
                               std::vector<QAccessibleInterface*>* found)
    {
        for (int i = 0; parent && i < parent->childCount(); ++i) {
            QAccessibleInterface* const child = parent->child(i);
            if (!child || child->state().invisible)
                continue;
            found->push_back(child);
            addAccessibles(child, found);
        }
    }

    static QString lineOf(QAccessibleInterface* object)
    {
        const char* const role =
            QMetaEnum::fromType<QAccessible::Role>().valueToKey(object->role());
        return QLatin1String(role) + QLatin1String(": ") + object->text(QAccessible::Name);
    }

    QTemporaryDir m_folder;
    Marks m_marks;
    QMetaObject::Connection m_listening;
    QStringList m_changes;
};

QUICK_TEST_MAIN_WITH_SETUP(quick, Host)

#include "tst_quick.moc"
