// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Style/PlatformTexts.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

using namespace tessaly;

/// Reads the texts of the whole tree: none that names another platform's things may reach the screen as it stands.
class PlatformTextsTest : public QObject {
    Q_OBJECT

    static QRegularExpression foreignWords()
    {
        return QRegularExpression(QStringLiteral("\\b(mac|macos|finder|dock|retina|system settings|menu bar)\\b|[⌘⌥⌃⇧⌫]"),
            QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    }

    static QString without(QString text, const QString &pattern)
    {
        return text.remove(QRegularExpression(pattern, QRegularExpression::MultilineOption));
    }

    /// The string literals of a source, those that the compiler joins joined; comments and this catalogue left out.
    static QStringList literalsOf(const QString &path)
    {
        QFile file(path);
        if (path.endsWith(u"PlatformTexts.cpp") || !file.open(QIODevice::ReadOnly))
            return {};
        QString text = without(QString::fromUtf8(file.readAll()), QStringLiteral("^\\s*//.*$|^#include.*$"));
        text = without(text, QStringLiteral("(?<!\\\\)\"\\s*\\n\\s*u?\""));
        QStringList literals;
        static const QRegularExpression literal(QStringLiteral("\"((?:[^\"\\\\\\n]|\\\\.)*)\""));
        for (auto match = literal.globalMatch(text); match.hasNext();)
            literals += match.next().captured(1);
        return literals;
    }

    static QStringList literalsOfTheTree()
    {
        QStringList all;
        QDirIterator files(QStringLiteral(TESSALY_SOURCE "/src"), { QStringLiteral("*.h"), QStringLiteral("*.cpp") },
            QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext())
            all += literalsOf(files.next());
        return all;
    }

private Q_SLOTS:
    void everyForeignTextHasARow()
    {
        const QStringList literals = literalsOfTheTree();
        QVERIFY(literals.size() > 500);
        QVERIFY(literals.contains(QString::fromUtf8(PlatformTexts::rows()[1].source))); // finds what is divided
        QStringList sources, missing;
        for (const auto &row : PlatformTexts::rows())
            sources += QString::fromUtf8(row.source);
        for (const QString &text : literals) {
            const bool isStoredKeyLabel = text.size() == 1; // core/Hotkey shows the names of this desktop
            if (!isStoredKeyLabel && text.contains(foreignWords()) && !sources.contains(text))
                missing += text;
        }
        QCOMPARE(missing, QStringList());
    }

    void whatIsShownNamesNothingForeign()
    {
        for (const auto &row : PlatformTexts::rows()) {
            QVERIFY2(QString::fromUtf8(row.source).contains(foreignWords()), row.source); // else it needs no row
            QVERIFY2(!QString::fromUtf8(row.shown).contains(foreignWords()), row.shown);
        }
    }

    void isAskedInEveryContext()
    {
        PlatformTexts texts;
        QCoreApplication::installTranslator(&texts);
        QCOMPARE(QCoreApplication::translate("AnyContext", "Show in Finder"), "Show in File Manager");
        QCOMPARE(QCoreApplication::translate("AnyContext", "Undo"), "Undo");
        QCoreApplication::removeTranslator(&texts);
    }
};

QTEST_GUILESS_MAIN(PlatformTextsTest)
#include "PlatformTextsTest.moc"
