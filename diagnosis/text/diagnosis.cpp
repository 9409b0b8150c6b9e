// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "text/diagnosis.h"

#include <QCoreApplication>
#include <QHash>

#include <atomic>

namespace {

std::atomic<bool> isLanguageKept{false};

} // namespace

QString Diagnosis::tr(const char* text, const char* disambiguation, int n)
{
    if (n >= 0 || disambiguation || !isLanguageKept)
        return QCoreApplication::translate("Diagnosis", text, disambiguation, n);
    thread_local QHash<const char*, QString> known;
    QString& translation = known[text];
    if (translation.isNull())
        translation = QCoreApplication::translate("Diagnosis", text);
    return translation;
}

void Diagnosis::keepLanguage()
{
    isLanguageKept = true;
}
