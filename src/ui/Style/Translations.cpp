// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Style/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

static void registerTranslations() { Q_INIT_RESOURCE(translations); }

namespace tessaly {

/// What is installed last is asked first.
Translations::Translations(const QString &language)
{
    QCoreApplication::installTranslator(&m_platform);
    const QLocale locale(language);
    if (locale.language() != QLocale::system().language())
        QLocale::setDefault(locale);
    if (language == u"en")
        return;
    if (m_qt.load(QStringLiteral("qtbase_") + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&m_qt);
    registerTranslations();
    if (m_own.load(QStringLiteral(":/translations/tessaly_%1.qm").arg(language)))
        QCoreApplication::installTranslator(&m_own);
    else
        qWarning("Tessaly: there are no texts in the language %s", qPrintable(language));
}

} // namespace tessaly
