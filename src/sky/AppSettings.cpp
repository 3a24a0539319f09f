// SPDX-License-Identifier: AGPL-3.0-or-later
#include "sky/AppSettings.h"

#include <QDir>
#include <QHash>
#include <QSettings>
#include <QStandardPaths>

#include <memory>

namespace {
struct Store
{
    QString path;
    std::unique_ptr<QSettings> settings;
    QHash<QString, QVariant> overrides;
};

Store &store()
{
    static Store s;
    return s;
}

QString defaultPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + QStringLiteral("/Orbanta.ini");
}

QSettings &settings()
{
    Store &s = store();
    const QString path = s.path.isEmpty() ? defaultPath() : s.path;
    if (!s.settings || s.settings->fileName() != path) {
        QDir().mkpath(QFileInfo(path).absolutePath());
        s.settings = std::make_unique<QSettings>(path, QSettings::IniFormat);
    }
    return *s.settings;
}

QString fullKey(const QString &section, const QString &key) { return section + QLatin1Char('/') + key; }
} // namespace

QString AppSettings::storeFile() { return settings().fileName(); }

void AppSettings::setStoreFile(const QString &path)
{
    store().settings.reset();
    store().path = path;
}

QVariant AppSettings::value(const QString &section, const QString &key, const QVariant &def)
{
    const QString k = fullKey(section, key);
    const auto it = store().overrides.constFind(k);
    if (it != store().overrides.constEnd())
        return *it;
    return settings().value(k, def);
}

void AppSettings::setValue(const QString &section, const QString &key, const QVariant &value)
{
    settings().setValue(fullKey(section, key), value);
    settings().sync();
}

void AppSettings::overrideForRun(const QString &section, const QString &key, const QVariant &value)
{
    store().overrides.insert(fullKey(section, key), value);
}

void AppSettings::clearOverrides() { store().overrides.clear(); }

int AppSettings::AyanType() { return value(QStringLiteral("Init"), QStringLiteral("AyanType"), 1).toInt(); }
void AppSettings::setAyanType(int v) { setValue(QStringLiteral("Init"), QStringLiteral("AyanType"), v); }
QString AppSettings::CustAyan()
{
    return value(QStringLiteral("Init"), QStringLiteral("CustAyan"), QStringLiteral("00.00")).toString();
}
int AppSettings::RahuKetuMode() { return value(QStringLiteral("Init"), QStringLiteral("RahuKetuMode"), 1).toInt(); }
bool AppSettings::Vakya() { return value(QStringLiteral("Init"), QStringLiteral("Vakya"), false).toBool(); }
int AppSettings::KundStyle() { return value(QStringLiteral("Init"), QStringLiteral("KundStyle"), 2).toInt(); }
