// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// "General Details" of a couple: both persons' birth data and birth-star facts side by side.

#include "output/ui/TopicPage.h"

class frmMarFront : public TopicPage
{
    Q_OBJECT
public:
    explicit frmMarFront(QWidget *parent = nullptr) : TopicPage(QStringLiteral("frmMarFront"), parent) {}

protected:
    void fill() override;
};
