// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// "Shodash Kundlis": one page with four contents, four divisional charts each: 1 Lagna, Hora,
// Drekkana, Chaturthamsha; 2 Saptamsha, Navamsha, Dashamsha, Dwadashamsha; 3 Shodashamsha,
// Vimshamsha, Chaturvimshamsha, Saptavimshamsha; 4 Trimshamsha, Khavedamsha, Akshavedamsha,
// Shashtiamsha.

#include "output/ui/TopicPage.h"

#include <array>

class Kundali;

class frmSodash : public TopicPage
{
    Q_OBJECT
public:
    explicit frmSodash(QWidget *parent = nullptr) : TopicPage(QStringLiteral("frmSodash"), parent) {}
    // Draws content n (1..4) again: the titles and the four charts.
    void MakePage(int n) override;
    int currentPage() const { return m_page; }
    std::array<Kundali *, 4> kunVarga{};
    std::array<QLabel *, 4> lblVarga{};

protected:
    void fill() override;

private:
    int m_page = 0;
};
