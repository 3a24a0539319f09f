// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The yoga rules asked by the last step of the scan, and the Nabhasha family: each a member that
// answers whether the chart holds the combination.

#include "yoga/YogaChart.h"

#include <QStringList>

#include <vector>

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

    // The rules of the catalogue, family by family.
    // The catalogue: standing, long life, the raja family.
    bool Chamara() const;
    bool Veera() const;
    bool Sankha1() const;
    bool Sankha2() const;
    bool RajyaYoga1() const;
    bool RajyaYoga2() const;
    bool Chhapa() const;
    bool Mridanga2() const;
    bool GajaPati1() const;
    bool GajaPati2() const;
    bool GajaPati3() const;
    bool ManMahendra1() const;
    bool ManMahendra3() const;
    bool ManMahendra4() const;
    bool Surendra1() const;
    bool Surendra2() const;
    bool Surendra3() const;
    bool Surendra4() const;
    bool Vikrama1() const;
    bool Vikrama2() const;
    bool Vikrama4() const;
    bool Deva1() const;
    bool Deva2() const;
    bool Deva3() const;
    bool Deva4() const;
    bool Mrigendra3() const;
    bool Muni() const;
    bool Amitayu() const;
    bool Purnayu1() const;
    bool Purnayu2() const;
    bool Purnayu3() const;
    bool Purnayu4() const;
    bool Purnayu5() const;
    bool Purnayu6() const;
    bool Purnayu7() const;
    bool Purnayu8() const;
    bool Purnayu9() const;
    bool Purnayu10() const;
    bool Shatadhika1() const;
    bool Shatadhika2() const;
    bool Rudra1() const;
    bool Rudra2() const;
    bool Rudra3() const;
    bool Paravata1() const;
    bool Paravata2() const;
    bool Paravata3() const;
    bool Devamsha1() const;
    bool Maharajadhiraj1() const;
    bool Maharajadhiraj2() const;
    bool Maharajadhiraj3() const;
    bool Maharajadhiraj4() const;
    bool Divya1() const;
    bool Divya2() const;
    bool Divya3() const;
    bool Divya4() const;
    bool Divya5() const;
    bool Rashmi2() const;
    bool Rashmi3() const;
    bool Rashmi5() const;
    bool Tarit1() const;
    bool Tarit2() const;
    bool Tarit3() const;
    bool Tarit4() const;
    bool Tarit5() const;
    bool Tarit6() const;
    bool Kailash1() const;
    bool Kailash2() const;
    bool Kailash3() const;
    bool Dehakashta1() const;
    bool Arvind1() const;
    bool Arvind2() const;
    bool Arvind3() const;
    bool Arvind4() const;
    bool Arvind5() const;
    bool Arvind6() const;
    bool Brahamand1() const;
    bool Brahamand2() const;
    bool Brahamand3() const;
    bool Brahamand4() const;
    bool Rajrajeshwar1() const;
    bool Rajrajeshwar2() const;
    bool VideshYatra1() const;
    bool VideshYatra2() const;
    bool Mahendra1() const;
    bool Mahendra2() const;
    bool Mahendra3() const;
    bool MahaLakshmi() const;
    bool RajaYoga1() const;
    bool RajaYoga2() const;
    bool RajaYoga3() const;
    bool RajaYoga4() const;
    bool RajaYoga5() const;
    bool RajaYoga6() const;
    bool RajaYoga7() const;
    bool RajaYoga8() const;
    bool RajaYoga9() const;
    bool RajaYoga10() const;
    bool RajaYoga11() const;
    bool RajaYoga12() const;
    bool RajaYoga13() const;
    bool RajaYoga14() const;
    bool RajaYoga15() const;
    bool RajaYoga16() const;
    bool RajaYoga17() const;
    bool RajaYoga18() const;
    bool RajaYoga19() const;
    bool RajaYoga20() const;
    bool RajaYoga21() const;
    bool RajaYoga22() const;
    bool RajaYoga23() const;
    bool RajaYoga24() const;
    bool RajaYoga25() const;
    bool RajaYoga26() const;
    bool RajaYoga27() const;
    bool RajaYoga28() const;
    bool RajaYoga29() const;
    bool RajaYoga30() const;
    bool RajaYoga31() const;
    bool RajaYoga32() const;
    bool RajaYoga33() const;
    bool RajaYoga34() const;
    bool RajaYoga35() const;
    bool RajaYoga36() const;
    bool RajaYoga37() const;
    bool RajaYoga38() const;
    bool RajaYoga39() const;
    bool RajaYoga40() const;
    bool RajaYoga41() const;
    bool Garuda() const;
    bool Chandika() const;
    bool Parijatha() const;
    bool JaiminiRY1() const;
    bool JaiminiRY2() const;
    bool JaiminiRY3() const;
    bool JaiminiRY4() const;
    bool JaiminiRY5() const;
    bool JaiminiRY6() const;
    bool JaiminiRY8() const;
    bool JaiminiRY9() const;
    bool JaiminiRY10() const;
    bool JaiminiRY11() const;
    bool JaiminiRY12() const;
    bool JaiminiRY13() const;
    bool JaiminiRY14() const;
    bool JaiminiRY15() const;
    bool JaiminiRY18() const;
    bool JaiminiArishta1() const;
    bool JaiminiArishta3() const;
    // The catalogue: vehicles, wealth, loss of wealth and riches.
    bool Vahana1() const;
    bool Vahana2() const;
    bool Vahana3() const;
    bool Vahana4() const;
    bool Vahana5() const;
    bool Vahana6() const;
    bool Vahana7() const;
    bool Vahana8() const;
    bool Vahana9() const;
    bool Vahana10() const;
    bool Vahana11() const;
    bool Vahana12() const;
    bool Vahana13() const;
    bool Vahana14() const;
    bool Vahana15() const;
    bool DhanaYoga2() const;
    bool DhanaYoga3() const;
    bool DhanaYoga4() const;
    bool DhanaYoga5() const;
    bool DhanaYoga6() const;
    bool DhanaYoga7() const;
    bool DhanaYoga8() const;
    bool DhanaYoga9() const;
    bool DhanaYoga11() const;
    bool DhanaYoga13() const;
    bool DhanaYoga14() const;
    bool DhanaYoga15() const;
    bool DhanaYoga18() const;
    bool DhanaYoga20() const;
    bool DhanaYoga21() const;
    bool DhanaYoga22() const;
    bool DhanaYoga23() const;
    bool DhanaYoga24() const;
    bool DhanaYoga25() const;
    bool DhanaYoga26() const;
    bool DhanaYoga27() const;
    bool DhanaYoga28() const;
    bool DhanaYoga29() const;
    bool DhanaYoga30() const;
    bool DhanaYoga32() const;
    bool DhanaYoga34() const;
    bool DhanaYoga37() const;
    bool DhanaYoga47() const;
    bool DhanaYoga48() const;
    bool DhanaYoga49() const;
    bool DhanaYoga50() const;
    bool DhanaYoga51() const;
    bool DhanaYoga52() const;
    bool DhanaYoga53() const;
    bool DhanaYoga54() const;
    bool DhanaYoga55() const;
    bool DhanaYoga56() const;
    bool DhanaYoga57() const;
    bool DhanaYoga58() const;
    bool DhanaYoga59() const;
    bool DhanaYoga60() const;
    bool DhanaYoga61() const;
    bool DhanaYoga62() const;
    bool DhanaYoga63() const;
    bool DhanaYoga64() const;
    bool DhanaYoga65() const;
    bool DhanaYoga66() const;
    bool DhanaYoga67() const;
    bool DhanaYoga68() const;
    bool DhanaYoga69() const;
    bool DhanaYoga70() const;
    bool DhanaYoga71() const;
    bool Dhanahani1() const;
    bool Dhanahani3() const;
    bool Dhanahani4() const;
    bool Dhanahani5() const;
    bool Dhanahani7() const;
    bool Dhanahani8() const;
    bool Dhanahani13() const;
    bool Dhanahani14() const;
    bool Dhanahani15() const;
    bool Dhanahani17() const;
    bool Dhanahani18() const;
    bool Dhanahani19() const;
    bool Dhanahani20() const;
    bool Dhanahani21() const;
    bool Dhanahani22() const;
    bool Dhanahani24() const;
    bool Dhanahani26() const;
    bool Dhanahani27() const;
    bool Dhanahani28() const;
    bool Dhanahani29() const;
    bool Dhanahani30() const;
    bool Dhanahani31() const;
    bool Dhanahani32() const;
    bool Dhanahani33() const;
    bool Dhanahani34() const;
    bool MahaDhanaYoga2() const;
    bool NashtadravyaPrapti() const;
    bool Sampat1() const;
    bool Sampat2() const;
    bool Sampat3() const;
    bool Sampat5() const;
    bool Sampat6() const;
    bool Sampat7() const;
    bool Sampat8() const;
    bool Sampat9() const;
    // The catalogue: family, body, mind, speech and fortune.
    bool Dattaputra() const;
    bool Vatha() const;
    bool DrishtiDurval() const;
    bool Rajlakshana() const;
    bool Gyatibhisthyaktha() const;
    bool MatriDeerghayu() const;
    bool NishKapata() const;
    bool SarpaSapa() const;
    bool PitriSapa() const;
    bool MatriSapa() const;
    bool BhatriSapa() const;
    bool PretaSapa() const;
    bool Putrasukh() const;
    bool Kalanirdesat() const;
    bool Kalanasha() const;
    bool Buddhimaturya() const;
    bool BuddhiJada() const;
    bool Jara() const;
    bool Satkalatra() const;
    bool Bhagyahani() const;
    bool Dhatritwa() const;
    bool Apakeerti() const;
    bool Vrana1() const;
    bool Vrana2() const;
    bool Vrana3() const;
    bool Vrana4() const;
    bool Vrana5() const;
    bool Vrana6() const;
    bool Vrana7() const;
    bool Sisnavyadhi() const;
    bool Kalatrashanda() const;
    bool Kushtharoga() const;
    bool Bandhana2() const;
    bool Peenasaroga() const;
    bool Pittaroga() const;
    bool RajaYogaBhanga() const;
    bool Bharathi() const;
    bool Kulavardhana() const;
    bool UttamaArgala() const;
    bool Parakrama1() const;
    bool Parakrama2() const;
    bool LagnaShubhArgala() const;
    bool ChandraShubhArgala() const;
    bool SubhaGola() const;
    bool ParaChatussagar() const;
    bool VanchanaChoraBheeti1() const;
    bool MokshaPrapti() const;
    bool Vishnu() const;
    bool Brahm() const;
    bool Krishanga1() const;
    bool Dehashthoulya1() const;
    bool Dehashthoulya2() const;
    bool Dehashthoulya3() const;
    bool EkBhagini() const;
    bool BahuSahodara() const;
    bool SwaveeryaDhana2() const;
    bool BalyaDhana() const;
    bool BhatriMoolatDhana1() const;
    bool Sumukh1() const;
    bool Durmukha1() const;
    bool Vagmi1() const;
    bool Vagmi2() const;
    bool YuddhaPashchat() const;
    bool Satkathadi() const;
    bool TeevraBuddhi() const;
    bool NavaLakshmi() const;
    bool Koteesha() const;

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

    // The catalogue in the class's order: every rule a caller may ask beyond the scan, by name.
    struct CatalogueRule
    {
        bool (clsYoga::*rule)() const;
        const char *name;
    };
    static const std::vector<CatalogueRule> &Catalogue();
    // The names of the catalogue's rules that hold, in order.
    QStringList CatalogueHolds() const;

private:
    bool ownEx(int p) const;
    bool kendra(int p) const;
    bool trikona(int p) const;
    // a's sign receives b's sign aspect.
    bool sees(int a, int b) const;
    int navSign(int p) const;
    int navLord(int p) const;
    // Norm360(lon(a) - lon(b)).
    double gap(int a, int b) const;
    int exaltedCount(int from, int to) const;
    // sign is one of the counts from q's sign.
    bool signFrom(int sign, std::initializer_list<int> counts, int q) const;
    bool vargottamaStrong(int p) const;
    bool twoExaltedOneRising(int a, int b) const;
    // p shares a sign with one of the others.
    bool withAny(int p, std::initializer_list<int> others) const;
    // One of the planets stands in one of the houses.
    bool anyIn(std::initializer_list<int> planets, std::initializer_list<int> houses) const;
    // The lord of the 6th is planet, in a fixed or fiery sign of the 1st, 8th or 10th house.
    bool sixthLordWound(int planet) const;
    // The combustion test as the rules call it (see the definition).
    bool combustAsWritten(int p) const;
    // One of the planets in the n-th sign from the Atma Karaka's.
    bool fromKaraka(std::initializer_list<int> planets, int n) const;
    // The sign holds or receives the aspect of Jupiter, Venus, Mercury or the Moon.
    bool beneficOn(int sign) const;
    int occupied() const;
    // All of the planets 1..7 in the houses.
    bool allIn(std::initializer_list<int> houses) const;
    bool strongOrOwn(int p) const;
    YogaChart y;
};
