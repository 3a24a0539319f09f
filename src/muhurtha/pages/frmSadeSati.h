// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// "Shani Saade Saati": the spans of the life in which Saturn passes the signs around the natal
// Moon, with the dates of each entry and exit and the Paya of each entry.

#include "output/ui/TopicPage.h"

class frmSadeSati : public TopicPage
{
    Q_OBJECT
public:
    explicit frmSadeSati(QWidget *parent = nullptr) : TopicPage(QStringLiteral("frmSadeSati"), parent) {}

protected:
    void fill() override;
};
