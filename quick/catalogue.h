// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "languagewatch.h"
#include "rowmodel.h"

/// The catalogue of device models, in its order. Roles: modelId (the number by which settings and
/// states name it), modelName (that of its protocol), kind (for people, in the language that is
/// shown), className, type (Acceptors::AcceptorType) and canDispense.
class Catalogue : public RowModel
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit Catalogue(QObject* parent = nullptr);

    /// What people call a device of the model, for example "Bill validator (CCNet)".
    Q_INVOKABLE QString deviceName(int model) const;

private:
    void list();

    LanguageWatch m_language;
};
