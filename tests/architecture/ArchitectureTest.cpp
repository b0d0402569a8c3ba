// SPDX-License-Identifier: GPL-3.0-or-later
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <functional>

/// Reads the includes of the tree against the arrows that the build files declare.
class ArchitectureTest : public QObject {
    Q_OBJECT

    struct Row {
        QSet<QString> uses;
        QSet<QString> qt;
    };

    static QString textOf(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

    static QStringList wordsOf(const QString &text) { return text.split(u' ', Qt::SkipEmptyParts); }

    static QMap<QString, Row> declaredArrows()
    {
        QMap<QString, Row> rows;
        const auto lines = textOf(QStringLiteral(TESSALY_ARROWS)).split(u'\n', Qt::SkipEmptyParts);
        for (const QString &line : lines) {
            const QStringList halves = line.section(u':', 1).split(u'|');
            const QStringList uses = wordsOf(halves.value(0)), qt = wordsOf(halves.value(1));
            rows.insert(line.section(u':', 0, 0), { { uses.begin(), uses.end() }, { qt.begin(), qt.end() } });
        }
        return rows;
    }

    /// Every source below src/ with its includes: path relative to src/ → included texts.
    static QMap<QString, QStringList> includes()
    {
        static const QRegularExpression pattern(
            QStringLiteral("^#include [<\"]([^>\"]+)[>\"]"), QRegularExpression::MultilineOption);
        QMap<QString, QStringList> found;
        const QDir root(QStringLiteral(TESSALY_SOURCE "/src"));
        QDirIterator files(
            root.path(), { QStringLiteral("*.h"), QStringLiteral("*.cpp") }, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString path = files.next();
            QStringList &list = found[root.relativeFilePath(path)];
            for (auto match = pattern.globalMatch(textOf(path)); match.hasNext();)
                list += match.next().captured(1);
        }
        return found;
    }

    static QString folderOf(const QString &path) { return path.section(u'/', 0, -2); }

    /// The Qt module that a header belongs to, by where it is installed; empty for what is not Qt's.
    static QString qtModuleOf(const QString &header)
    {
        if (!header.startsWith(u'Q') && !header.startsWith(u"q"))
            return {};
        for (const char *module : { "Core", "Gui", "Widgets", "Network", "DBus", "PrintSupport", "Test", "Svg" }) {
            const QString name = QLatin1String(module);
            if (QFile::exists(QStringLiteral(TESSALY_QT_HEADERS "/Qt") + name + u'/' + header))
                return name;
        }
        return header.startsWith(u"Qt") ? header.section(u'/', 0, 0).mid(2) : QString();
    }

    /// A cycle in a graph as "a -> b -> a"; empty when there is none.
    static QString cycleIn(const QMap<QString, QStringList> &graph)
    {
        QSet<QString> done;
        QStringList path;
        std::function<QString(const QString &)> visit = [&](const QString &node) -> QString {
            if (path.contains(node))
                return QStringList(path.mid(path.indexOf(node)) << node).join(QStringLiteral(" -> "));
            if (done.contains(node))
                return {};
            path += node;
            for (const QString &next : graph.value(node)) {
                if (const QString cycle = visit(next); !cycle.isEmpty())
                    return cycle;
            }
            path.removeLast();
            done += node;
            return {};
        };
        for (auto node = graph.keyBegin(); node != graph.keyEnd(); ++node) {
            if (const QString cycle = visit(*node); !cycle.isEmpty())
                return cycle;
        }
        return {};
    }

private Q_SLOTS:
    void everyIncludeFollowsAnArrow()
    {
        const auto rows = declaredArrows();
        QVERIFY(rows.size() > 5);
        QStringList broken;
        const auto all = includes();
        for (auto file = all.begin(); file != all.end(); ++file) {
            const QString folder = folderOf(file.key());
            if (!rows.contains(folder))
                continue; // src/ itself and app/, which starts everything
            const Row &row = rows[folder];
            for (const QString &text : file.value()) {
                const QString target = folderOf(text);
                const QString module = qtModuleOf(text);
                if (rows.contains(target) && target != folder && !row.uses.contains(target))
                    broken += QStringLiteral("%1: %2").arg(file.key(), text);
                if (!module.isEmpty() && !row.qt.contains(module))
                    broken += QStringLiteral("%1: %2 of Qt %3").arg(file.key(), text, module);
            }
        }
        QVERIFY2(broken.isEmpty(), qPrintable(broken.join(u'\n')));
    }

    void thereIsNoCycle()
    {
        QMap<QString, QStringList> folders;
        const auto rows = declaredArrows();
        for (auto row = rows.begin(); row != rows.end(); ++row)
            folders[row.key()] = QStringList(row->uses.begin(), row->uses.end());
        QCOMPARE(cycleIn(folders), QString());
        QCOMPARE(cycleIn(includes()), QString());
    }

    void everyFolderIsInTheDocument()
    {
        const QString document = textOf(QStringLiteral(TESSALY_SOURCE "/docs/architecture.md"));
        QStringList missing;
        const auto rows = declaredArrows();
        for (auto row = rows.keyBegin(); row != rows.keyEnd(); ++row) {
            if (!document.contains(u'`' + *row + u'`'))
                missing += *row;
        }
        QCOMPARE(missing, QStringList());
    }

    void everySourceNamesItsLicenceAndStaysReadable()
    {
        QStringList faulty;
        const auto all = includes();
        for (auto file = all.keyBegin(); file != all.keyEnd(); ++file) {
            const QString text = textOf(QStringLiteral(TESSALY_SOURCE "/src/") + *file);
            if (!text.startsWith(u"// SPDX-License-Identifier: GPL-3.0-or-later\n"))
                faulty += QStringLiteral("%1: no licence line").arg(*file);
            if (text.count(u'\n') > (file->endsWith(u".h") ? 200 : 500))
                faulty += QStringLiteral("%1: too long").arg(*file);
        }
        QCOMPARE(faulty, QStringList());
    }
};

QTEST_GUILESS_MAIN(ArchitectureTest)
#include "ArchitectureTest.moc"
