// SPDX-License-Identifier: AGPL-3.0-or-later
#include "session/clsIni.h"

#include "sky/DataPaths.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStringList>

namespace {
const QString kAppTitle = QStringLiteral("Orbanta");
const QString kDefaultFile = QStringLiteral("GENDAT.INI");

// The stored spelling of name among names, matched without case; name itself when absent.
QString storedSpelling(const QStringList &names, const QString &name)
{
    for (const QString &n : names)
        if (n.compare(name, Qt::CaseInsensitive) == 0)
            return n;
    return name;
}

// "section/key" as the file spells it.
QString storedKey(QSettings &ini, const QString &section, const QString &key)
{
    const QString group = storedSpelling(ini.childGroups(), section);
    ini.beginGroup(group);
    const QString k = storedSpelling(ini.childKeys(), key);
    ini.endGroup();
    return group + QLatin1Char('/') + k;
}

QString valueText(const QVariant &v)
{
    // An unquoted value holding commas reads back as a list.
    if (v.metaType().id() == QMetaType::QStringList)
        return v.toStringList().join(QStringLiteral(", "));
    return v.toString();
}
} // namespace

QString clsIni::IniPath(const QString &file)
{
    const QString name = file.isEmpty() ? kDefaultFile : file;
    if (QFileInfo(name).isAbsolute())
        return name;
    return QDir(DataPaths::UserFolder()).filePath(name);
}

QString clsIni::GetIniString(const QString &key, const QString &def, const QString &section, const QString &file)
{
    QSettings ini(IniPath(file), QSettings::IniFormat);
    const QString k = storedKey(ini, section.isEmpty() ? kAppTitle : section, key);
    const QString text = ini.contains(k) ? valueText(ini.value(k)) : def;
    return text.left(kBufferSize - 1);
}

void clsIni::WriteIniString(const QString &key, const QString &value, const QString &section, const QString &file)
{
    const QString path = IniPath(file);
    QDir().mkpath(QFileInfo(path).absolutePath());
    QSettings ini(path, QSettings::IniFormat);
    ini.setValue(storedKey(ini, section.isEmpty() ? kAppTitle : section, key), value);
    ini.sync();
}

QString clsIni::DispName()
{
    return GetIniString(QStringLiteral("DispName"), QStringLiteral("Orbanta user"));
}

QString clsIni::DispAdd()
{
    return GetIniString(QStringLiteral("DispAdd"), QString());
}

bool clsIni::ShowError(int n)
{
    const QString v = GetIniString(QString::number(n), QStringLiteral("True"), QStringLiteral("SHOWERROR"));
    return v.compare(QStringLiteral("False"), Qt::CaseInsensitive) != 0 && v.trimmed() != QStringLiteral("0");
}
