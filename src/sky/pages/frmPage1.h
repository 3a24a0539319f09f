// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// "General Details": the birth record, the Panchang and Avakahada facts, and the unfavourable
// (Ghatak) and favourable factors of the person.

#include "output/ui/TopicPage.h"

class frmPage1 : public TopicPage
{
    Q_OBJECT
public:
    explicit frmPage1(QWidget *parent = nullptr) : TopicPage(QStringLiteral("frmPage1"), parent) {}

protected:
    void fill() override;
};
