// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Annotation/AnnotationKinds.h"
#include "core/Export/ExportFormat.h"
#include "core/Preferences/AppLanguages.h"
#include "ui/Preferences/PreferenceOptions.h"

#include <QTest>

using namespace tessaly;

/// The tables behind the settings window against those that the settings are checked and read by.
class PreferenceRowsTest : public QObject {
    Q_OBJECT

    template <class Enum>
    static QStringList rawValues()
    {
        QStringList values;
        for (const auto &row : enumNames<Enum>)
            values += QString(row.raw);
        return values;
    }

private Q_SLOTS:
    void whatIsAllowedIsWhatIsRead_data()
    {
        QTest::addColumn<QStringList>("values");
        QTest::newRow("exportFormat") << rawValues<ExportFormat>();
        QTest::newRow("defaultArrowHead") << rawValues<ArrowHeadStyle>();
        QTest::newRow("defaultObscureStyle") << rawValues<ObscureStyle>();
        QTest::newRow("defaultStampKind") << rawValues<StampKind>();
        QStringList tabs;
        for (const PreferenceTab &tab : preferenceTabs())
            tabs += QString::fromLatin1(tab.name);
        QTest::newRow("settingsTab") << tabs;
    }

    void whatIsAllowedIsWhatIsRead()
    {
        QFETCH(QStringList, values);
        QStringList choices;
        for (const char *choice : SettingTable::find(QString::fromLatin1(QTest::currentDataTag()))->choices)
            choices += QString::fromLatin1(choice);
        QCOMPARE(choices, values);
    }

    void everyChoiceOffersWhatIsAllowed()
    {
        int choices = 0;
        for (const PreferenceTab &tab : preferenceTabs()) {
            for (const PreferenceGroup &group : tab.groups) {
                for (const PreferenceRow &row : group.rows) {
                    if (!row.options)
                        continue;
                    const QString name = QString::fromLatin1(SettingRow { row.key, SettingType::Text }.name());
                    const SettingRow &setting = *SettingTable::find(name);
                    const QList<PreferenceOption> options = row.options();
                    QVERIFY2(options.size() >= 2, qPrintable(name));
                    for (const PreferenceOption &option : options) {
                        QVERIFY2(SettingTable::parse(setting, option.value.toString()), qPrintable(name));
                        QVERIFY2(!option.label.isEmpty(), qPrintable(name));
                    }
                    QVERIFY2(setting.choices.empty() || options.size() == qsizetype(setting.choices.size()),
                        qPrintable(name));
                    ++choices;
                }
            }
        }
        QVERIFY(choices >= 9);
    }
};

QTEST_MAIN(PreferenceRowsTest)
#include "PreferenceRowsTest.moc"
