// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Preferences/AppLanguages.h"

#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

#include <algorithm>

/// Compares translations/*.ts with the texts of the sources, as tools/translations finds them.
class TranslationFilesTest : public QObject {
    Q_OBJECT

    struct Message {
        QString context, source, meaning;
        QString translation;
        bool isFinished = false;

        QString name() const
        {
            return QStringLiteral("%1: %2").arg(context, meaning.isEmpty() ? source : source + u'|' + meaning);
        }
    };
    using Messages = QMap<QString, Message>; ///< by their names

    QTemporaryDir m_folder;
    Messages m_inSources;

    static Messages messagesOf(const QString &path)
    {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return {};
        QXmlStreamReader xml(&file);
        Messages messages;
        Message message;
        while (!xml.atEnd()) {
            xml.readNext();
            if (xml.isEndElement() && xml.name() == u"message")
                messages.insert(message.name(), message);
            if (!xml.isStartElement())
                continue;
            if (xml.name() == u"name")
                message = { xml.readElementText(), {}, {}, {} };
            else if (xml.name() == u"message")
                message = { message.context, {}, {}, {} };
            else if (xml.name() == u"source")
                message.source = textOf(xml);
            else if (xml.name() == u"comment")
                message.meaning = textOf(xml);
            else if (xml.name() == u"translation") {
                message.isFinished = xml.attributes().value(QStringLiteral("type")).isEmpty();
                message.translation = textOf(xml);
            }
        }
        return xml.hasError() ? Messages() : messages;
    }

    /// With the control characters, which stand as elements: <byte value="x9"/>.
    static QString textOf(QXmlStreamReader &xml)
    {
        QString text;
        while (xml.readNext() != QXmlStreamReader::EndElement) {
            if (xml.isStartElement()) {
                text += QChar(xml.attributes().value(QStringLiteral("value")).mid(1).toInt(nullptr, 16));
                xml.skipCurrentElement();
            } else {
                text += xml.text();
            }
        }
        return text;
    }

    /// "%1", "%n", "%d", the patterns of files and what is typed into a terminal: the same in every language.
    static QStringList fixedPartsOf(const QString &text)
    {
        static const QRegularExpression fixed(
            QStringLiteral("%[0-9nd]|\\*\\.\\w+|\\[\\*\\]|--\\w+|TESSALY_\\w+|systemctl[^”»“]*portal"));
        QStringList parts;
        for (auto match = fixed.globalMatch(text); match.hasNext();)
            parts += match.next().captured();
        parts.sort();
        return parts;
    }

    /// The letter after the "&" of a menu's title.
    static QChar mnemonicOf(const QString &title) { return title.section(u'&', 1).left(1).toUpper().back(); }

    static QString pathOf(const char *language)
    {
        return QStringLiteral(TESSALY_SOURCE "/translations/tessaly_%1.ts").arg(QLatin1String(language));
    }

    static void addLanguages()
    {
        QTest::addColumn<QString>("path");
        for (const tessaly::AppLanguage &language : tessaly::appLanguages) {
            if (QByteArrayView(language.code) != "system" && QByteArrayView(language.code) != "en")
                QTest::newRow(language.code) << pathOf(language.code);
        }
    }

private Q_SLOTS:
    void initTestCase()
    {
        const QString path = m_folder.filePath(QStringLiteral("texts.ts"));
        QProcess lupdate;
        lupdate.start(QStringLiteral(TESSALY_SOURCE "/tools/translations"), { path });
        QVERIFY(lupdate.waitForFinished());
        QVERIFY2(lupdate.exitCode() == 0, lupdate.readAllStandardError());
        m_inSources = messagesOf(path);
        QVERIFY(m_inSources.size() > 500);
    }

    void everyTextIsTranslated_data() { addLanguages(); }
    void everyTextIsTranslated()
    {
        QFETCH(QString, path);
        const Messages translated = messagesOf(path);
        QStringList forgotten, gone;
        for (const QString &name : m_inSources.keys()) {
            const Message message = translated.value(name);
            if (!message.isFinished || message.translation.isEmpty())
                forgotten += name;
        }
        for (const QString &name : translated.keys()) {
            if (!m_inSources.contains(name))
                gone += name;
        }
        // Run tools/translations, then translate what is unfinished.
        QVERIFY2(forgotten.isEmpty(), forgotten.join(u'\n').toUtf8());
        QVERIFY2(gone.isEmpty(), gone.join(u'\n').toUtf8());
    }

    void translationsKeepWhatIsNoText_data() { addLanguages(); }
    void translationsKeepWhatIsNoText()
    {
        QFETCH(QString, path);
        static const QRegularExpression foreign(QStringLiteral("\\bMac\\b|macOS|Retina|Finder|Dock\\b|[⌘⌥⇧⌃]"));
        const auto edges = [](const QString &text) {
            return QPair(text.endsWith(u'…'), QPair(text.count(u'\n'), text.count(u'&')));
        };
        for (const Message &message : messagesOf(path)) {
            const QByteArray name = message.name().toUtf8();
            QVERIFY2(fixedPartsOf(message.source) == fixedPartsOf(message.translation), name);
            QVERIFY2(edges(message.source) == edges(message.translation), name);
            QVERIFY2(!message.translation.contains(foreign), name);
        }
    }

    void menusHaveLettersOfTheirOwn_data() { addLanguages(); }
    void menusHaveLettersOfTheirOwn()
    {
        QFETCH(QString, path);
        QList<QChar> letters;
        for (const Message &message : messagesOf(path)) {
            if (message.context == u"Menus" && message.source.contains(u'&'))
                letters += mnemonicOf(message.translation);
        }
        QVERIFY(letters.size() >= 8);
        for (const QChar letter : letters)
            QVERIFY2(letters.count(letter) == 1, QString(letter).toUtf8());
    }

    /// A text that reaches the translators only through a function of its file's own is found by nobody, nor is one
    /// that is marked within a call of tr().
    void noTextIsHidden()
    {
        static const QRegularExpression wrapper(
            QStringLiteral("QString (\\w+)\\(const char \\*\\w+\\)\\s*\\{\\s*return QCoreApplication::translate\\("));
        QDirIterator files(QStringLiteral(TESSALY_SOURCE "/src"), { QStringLiteral("*.cpp") }, QDir::Files,
            QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            QVERIFY(file.open(QIODevice::ReadOnly));
            const QString text = QString::fromUtf8(file.readAll());
            static const QRegularExpression swallowed(QStringLiteral("\\btr\\(\\s*QT_TR"));
            QVERIFY2(!text.contains(swallowed), file.fileName().toUtf8());
            const auto match = wrapper.match(text);
            if (!match.hasMatch() || file.fileName().contains(u"/CommandLine/"))
                continue;
            const QRegularExpression hidden(QStringLiteral("(?<![\\w:])%1\\(\\s*\"").arg(match.captured(1)));
            QVERIFY2(!text.contains(hidden), file.fileName().toUtf8());
        }
    }
};

QTEST_GUILESS_MAIN(TranslationFilesTest)
#include "TranslationFilesTest.moc"
