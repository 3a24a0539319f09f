// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The yoga rules asked by the last step of the scan, and the Nabhasha family: each a member that
// answers whether the chart holds the combination.

#include "yoga/YogaChart.h"

class clsPlanets;

class clsYoga
{
public:
    explicit clsYoga(const clsPlanets &c) : y(c) {}

    bool Parvat() const;
    bool Chapa() const;
    bool Shankha() const;
    bool Bheri() const;
    bool Gaja() const;
    bool KalaNidhi() const;
    bool AmsaAvtaar() const;
    bool Hari() const;
    bool Hara() const;
    bool Brahma() const;
    bool Matsya() const;
    bool Devendra() const;
    bool Mukuta() const;
    bool Jaya() const;
    bool Vidyut() const;
    bool Gandharva() const;
    bool Indra() const;
    bool Ravi() const;
    bool Go() const;
    bool Trilochana() const;
    bool SareerSoukhya() const;
    bool DurYoga() const;
    bool Daridra() const;
    bool DehaPushti() const;
    bool Rogagrastha() const;
    bool SadaSanchar() const;

    // The Nabhasha family: how the seven planets spread over signs and houses.
    bool Gola_Nabhasha() const;
    bool Shoola_Nabhasha() const;
    bool Yuga_Nabhasha() const;
    bool Vallaki_Nabhasha() const;
    bool Damini_Nabhasha() const;
    bool Pasha_Nabhasha() const;
    bool Maala_Nabhasha() const;
    bool Sarpa_Nabhasha() const;
    bool Rajju_Nabhasha() const;
    bool Mushala_Nabhasha() const;
    bool Nala_Nabhasha() const;
    bool Chhatra_Nabhasha() const;
    bool Chapa_Nabhasha() const;
    bool ArdhaChandra1_Nabhasha() const;
    bool ArdhaChandra2_Nabhasha() const;
    bool ArdhaChandra3_Nabhasha() const;
    bool ArdhaChandra4_Nabhasha() const;
    bool ArdhaChandra5_Nabhasha() const;
    bool ArdhaChandra6_Nabhasha() const;
    bool ArdhaChandra7_Nabhasha() const;
    bool ArdhaChandra8_Nabhasha() const;
    bool Chakra_Nabhasha() const;
    bool Samudra_Nabhasha() const;
    bool Gada_Nabhasha() const;
    bool Shakata_Nabhasha() const;
    bool Vihaga_Nabhasha() const;
    bool Vajra_Nabhasha() const;
    bool Yava_Nabhasha() const;
    bool Shringhataka_Nabhasha() const;
    bool Hala1_Nabhasha() const;
    bool Hala2_Nabhasha() const;
    bool Kamala_Nabhasha() const;
    bool Vapee1_Nabhasha() const;
    bool Vapee2_Nabhasha() const;
    bool Yupa_Nabhasha() const;
    bool Shara_Nabhasha() const;
    bool Shakti_Nabhasha() const;
    bool Danda_Nabhasha() const;

    // The rules of the class's list, in the order the scan asks them, with their keys.
    struct ListedRule
    {
        bool (clsYoga::*rule)() const;
        const char *key;
    };
    static const ListedRule kList[27];

private:
    int occupied() const;
    // All of the planets 1..7 in the houses.
    bool allIn(std::initializer_list<int> houses) const;
    bool strongOrOwn(int p) const;
    YogaChart y;
};
