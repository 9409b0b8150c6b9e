// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "modeldialog.h"

#include "acceptors.h"
#include "terminal/velmo.h"
#include "text/devicename.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

ModelDialog::ModelDialog(QWidget* parent)
    : QDialog(parent)
    , m_models(new QComboBox(this))
{
    setWindowTitle(Velmo::tr("Add a device"));
    const QList<SupportedDevice> catalogue = Acceptors::supportedDevices();
    for (const SupportedDevice& row : catalogue) {
        const int id = row.value(QStringLiteral("id")).toInt();
        m_models->addItem(deviceName(id), QString::number(id));
    }
    auto* const label = new QLabel(Velmo::tr("&Model:"), this);
    label->setBuddy(m_models);
    auto* const hint =
        new QLabel(Velmo::tr("It begins with the built-in defaults of its model."), this);
    hint->setWordWrap(true);
    auto* const buttons = new QDialogButtonBox(this);
    buttons->addButton(Velmo::tr("&Add"), QDialogButtonBox::AcceptRole)->setDefault(true);
    buttons->addButton(Velmo::tr("&Cancel"), QDialogButtonBox::RejectRole);
    auto* const layout = new QVBoxLayout(this);
    for (QWidget* const widget : {static_cast<QWidget*>(label), static_cast<QWidget*>(m_models),
                                  static_cast<QWidget*>(hint), static_cast<QWidget*>(buttons)})
        layout->addWidget(widget);
    m_models->setFocus();
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

QString ModelDialog::model() const
{
    return m_models->currentData().toString();
}
