// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/Result.h"
#include "core/Preferences/SettingKeys.h"
#include "core/Preferences/SettingsFile.h"

#include <QJsonObject>
#include <QObject>
#include <QSet>

#include <functional>
#include <optional>

namespace tessaly {

/// The user's settings: a flat JSON object in one file. Only what differs from its default is stored; keys that this
/// version does not know are kept. A stored value of another type, or a text that the setting does not take, reads as
/// the default and stays as it is until its key is set. Several programs may write the file: each changes only the keys
/// that it sets. Main thread only.
class Settings : public QObject {
    Q_OBJECT

public:
    /// Reads the file at `path`. A file that is not there is no settings; one that cannot be read leaves the defaults,
    /// and `problem()` says so. With an empty path nothing is read and nothing ever written.
    explicit Settings(QString path);

    /// "tessaly/settings.json" in the user's configuration folder.
    static QString defaultPath();

    bool value(const SettingKey<bool> &key) const;
    /// A stored number that is not whole counts as one of another type.
    int value(const SettingKey<int> &key) const;
    double value(const SettingKey<double> &key) const;
    QString value(const SettingKey<const char *> &key) const;
    std::optional<QByteArray> value(const SettingKey<SettingKeys::Bytes> &key) const;

    /// Store and write the file whole; a number must be finite. A file that could not be read is put aside, as
    /// "settings.json.unreadable-1", before the first write. Where writing fails the value still holds for this run,
    /// and the next write brings it along.
    Outcome set(const SettingKey<bool> &key, bool value);
    Outcome set(const SettingKey<int> &key, int value);
    Outcome set(const SettingKey<double> &key, double value);
    Outcome set(const SettingKey<const char *> &key, const QString &value);
    Outcome set(const SettingKey<SettingKeys::Bytes> &key, const QByteArray &value);
    /// Back to the default.
    Outcome reset(const char *key);

    /// Writes the file once for all that `changes` stores, at its end. Nothing may be waited for meanwhile.
    Outcome changeTogether(const std::function<void()> &changes);

    /// From now on notices what other programs change, and tells of it by changed(). Needs an event loop.
    void followOthers();

    /// Why the stored settings could not be read; empty when they could, and once their file is put aside.
    const std::optional<Failure> &problem() const { return m_problem; }

Q_SIGNALS:
    /// The value of this key is another now, by this program or by another.
    void changed(const QString &key);

private:
    Outcome store(const char *key, const QJsonValue &value, const QJsonValue &fallback);
    Outcome write();
    void takeOver(const QJsonObject &there);
    void reread();
    void announce(const QJsonObject &before);

    SettingsFile m_file;
    QJsonObject m_values;
    QSet<QString> m_unwritten; ///< keys whose values the file does not have yet
    std::optional<Failure> m_problem;
    bool m_collects = false; ///< instead of writing
};

} // namespace tessaly
