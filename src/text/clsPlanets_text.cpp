// SPDX-License-Identifier: AGPL-3.0-or-later
// The chart's look-ups in the text database of its language, and the memo of the short names
// (signs, nakshatras, lords) that the pages ask for again and again.
#include "sky/clsPlanets.h"
#include "text/TextDB.h"

QVariant clsPlanets::GetHeadValue(int type, const QVariant &head, const QString &category) const
{
    return ::GetHeadValue(m_textDb, type, head, category);
}

QVariant clsPlanets::GetTextBetween(const QString &table, const QVariant &head, const QString &category) const
{
    return ::GetTextBetween(m_textDb, table, head, category);
}

QVariant clsPlanets::GetGenText(const QVariant &head) const { return ::GetGenText(m_textDb, head); }

QVariant clsPlanets::GetConjText(const QVariant &head) const { return ::GetConjText(m_textDb, head); }

QString clsPlanets::memoText(const QString &category, const QVariant &key) const
{
    if (m_textMemoConnection != m_textDb.connectionName()) {
        m_textMemo.clear();
        m_textMemoConnection = m_textDb.connectionName();
    }
    const QString k = TextKey(key);
    const QString memoKey = category + QLatin1Char('\x1f') + k.toUpper();
    const auto it = m_textMemo.constFind(memoKey);
    if (it != m_textMemo.constEnd())
        return *it;
    const QVariant v = GetHeadValue(1, k, category);
    if (v.isValid())
        m_textMemo.insert(memoKey, v.toString());
    return v.toString();
}
