// SPDX-License-Identifier: AGPL-3.0-or-later
#include "chartdraw/ChartLook.h"

#include "session/clsIni.h"
#include "sky/AppSettings.h"

#include <QDateTime>
#include <QFileInfo>

namespace {
const QString kSection = QStringLiteral("KUNCOLOR");

struct Cache
{
    ChartLook look;
    QString iniFile, storeFile;
    QString iniStamp, storeStamp;
    bool valid = false;
};

Cache &cache()
{
    static Cache c;
    return c;
}

// When and how large the file was last written: a change of either means it was written since.
QString stamp(const QString &file)
{
    const QFileInfo f(file);
    return QString::number(f.lastModified().toMSecsSinceEpoch()) + QLatin1Char('/') + QString::number(f.size());
}
} // namespace

bool ChartLook::ValidColour(qint64 value)
{
    return (value >= 0 && value <= 0xFFFFFF) || (value >= 0x80000000LL && value <= 0x800000FFLL);
}

ChartLook ChartLook::Read()
{
    ChartLook look;
    const int style = AppSettings::KundStyle();
    look.Style = style >= 0 && style <= 2 ? style : 2;
    for (int i = 0; i < kKeyCount; ++i) {
        const QString text = clsIni::GetIniString(QString::fromLatin1(kKeys[i].name), QString(), kSection).trimmed();
        bool ok = false;
        const qint64 v = text.toLongLong(&ok);
        if (ok && ValidFor(static_cast<Key>(i), v))
            look.Values[i] = v;
    }
    return look;
}

void ChartLook::Write() const
{
    AppSettings::setValue(QStringLiteral("Init"), QStringLiteral("KundStyle"), Style);
    WriteKeys();
}

void ChartLook::WriteKeys() const
{
    for (int i = 0; i < kKeyCount; ++i)
        clsIni::WriteIniString(QString::fromLatin1(kKeys[i].name), QString::number(Values[i]), kSection);
    cache().valid = false;
}

const ChartLook &ChartLook::Current()
{
    Cache &c = cache();
    const QString ini = clsIni::IniPath();
    const QString store = AppSettings::storeFile();
    if (!c.valid || c.iniFile != ini || c.storeFile != store || c.iniStamp != stamp(ini) || c.storeStamp != stamp(store)) {
        c.look = Read();
        c.iniFile = ini;
        c.storeFile = store;
        c.iniStamp = stamp(ini);
        c.storeStamp = stamp(store);
        c.valid = true;
    }
    return c.look;
}
