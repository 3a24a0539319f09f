// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// "Jaimini Lagnas": one row a special lagna, its name and the sign it falls in.

#include "output/ui/TopicPage.h"

class frmJaimini1 : public TopicPage
{
    Q_OBJECT
public:
    explicit frmJaimini1(QWidget *parent = nullptr) : TopicPage(QStringLiteral("frmJaimini1"), parent) {}
    static constexpr int kRows = 28;
    // The shown name and sign of row r (0..27).
    QString rowName(int r) const;
    QString rowSign(int r) const;

protected:
    void fill() override;

private:
    QVector<QVector<QLabel *>> m_cells;
};
