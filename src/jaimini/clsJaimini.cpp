// SPDX-License-Identifier: AGPL-3.0-or-later
#include "jaimini/clsJaimini.h"

#include "sky/clsPlanets.h"

clsJaimini::clsJaimini(const clsPlanets &chart) : m_chart(chart) {}

int clsJaimini::Sign(int n) const
{
    return {};
}

int clsJaimini::SignLord(int s)
{
    return {};
}

double clsJaimini::PlanetLongi(int n) const
{
    return {};
}

double clsJaimini::KrishAmsha(int n) const
{
    return {};
}

bool clsJaimini::Exalted(int p) const
{
    return {};
}

bool clsJaimini::Debilitated(int p) const
{
    return {};
}

int clsJaimini::Sex() const
{
    return {};
}

int clsJaimini::Clock12(int x)
{
    return {};
}

int clsJaimini::ConstClsOfSigns(int n) const
{
    return {};
}

double clsJaimini::BirthGhatika() const
{
    return {};
}

long clsJaimini::MinToDec(double x)
{
    return {};
}

int clsJaimini::HoraLagna(int mode) const
{
    return {};
}

int clsJaimini::BhavaLagna() const
{
    return {};
}

int clsJaimini::AyurLagna() const
{
    return {};
}

int clsJaimini::SapadaGhatikaLagna() const
{
    return {};
}

int clsJaimini::TripravanaLagna() const
{
    return {};
}

int clsJaimini::ShreeLagna() const
{
    return {};
}

int clsJaimini::InduLagna() const
{
    return {};
}

int clsJaimini::TaraLagna() const
{
    return {};
}

int clsJaimini::NakshatraLagna() const
{
    return {};
}

int clsJaimini::PakaLagna() const
{
    return {};
}

int clsJaimini::Swamsha() const
{
    return {};
}

int clsJaimini::GhatikaLagnaSign() const
{
    return {};
}

int clsJaimini::PranaPadaSign() const
{
    return {};
}

int clsJaimini::DivyaLagnaSign() const
{
    return {};
}

int clsJaimini::SphutaYogaLagnaSign() const
{
    return {};
}

double clsJaimini::ShreeLagnaLongi() const
{
    return {};
}

double clsJaimini::GhatikaLagnaLongi() const
{
    return {};
}

double clsJaimini::PranapadaLongi() const
{
    return {};
}

double clsJaimini::DivyaLagnaLongi() const
{
    return {};
}

double clsJaimini::SphutaYogaLagnaLongi() const
{
    return {};
}

int clsJaimini::KarakamsaLagna() const
{
    return {};
}

int clsJaimini::InduKalaValue(int p)
{
    return {};
}

int clsJaimini::VarnadaLagnaSign(int mode) const
{
    return {};
}

int clsJaimini::HouseVarnada(int h) const
{
    return {};
}

int clsJaimini::VarnadaXthSign(int h) const
{
    return {};
}

int clsJaimini::ArudhaLagna(int mode) const
{
    return {};
}

int clsJaimini::UpaPadaLagna(int mode) const
{
    return {};
}

int clsJaimini::JaiminiPadaSign(int h, int mode) const
{
    return {};
}

int clsJaimini::NavamshLagna(int mode) const
{
    return {};
}

int clsJaimini::DrekkanaLagna(int mode) const
{
    return {};
}

int clsJaimini::TraditionalDrekkanaLagna() const
{
    return {};
}

int clsJaimini::JmnDrkSign(int p, int mode) const
{
    return {};
}

int clsJaimini::NavamshSign(int p) const
{
    return {};
}

int clsJaimini::kmNavSign(int p) const
{
    return {};
}

int clsJaimini::JaiminiNavamshSign(int p) const
{
    return {};
}

int clsJaimini::KMNavLord(int p) const
{
    return {};
}

int clsJaimini::NavSignLord(int p) const
{
    return {};
}

int clsJaimini::AshtaCharaKaraka(int i) const
{
    return {};
}

int clsJaimini::SaptaCharaKaraka(int i) const
{
    return {};
}

int clsJaimini::SaptaSthiraKaraka(int i)
{
    return {};
}

int clsJaimini::SaptaBhavaKaraka(int i) const
{
    return {};
}

QString clsJaimini::AshtaCharaKarakaName(int i)
{
    return {};
}

QString clsJaimini::SaptaCharaKarakaName(int i)
{
    return {};
}

int clsJaimini::AtmaKarakaSign() const
{
    return {};
}

int clsJaimini::UpaKarakaGraha() const
{
    return {};
}

int clsJaimini::SubhaPatiGraha() const
{
    return {};
}

int clsJaimini::VmPltDasConst() const
{
    return {};
}

int clsJaimini::GetYogada(int p) const
{
    return {};
}

QString clsJaimini::YogadaStrength(int code)
{
    return {};
}

double clsJaimini::SphutasLongi(int which, int kind) const
{
    return {};
}

int clsJaimini::SphutasConcl(int which, int kind) const
{
    return {};
}

QString clsJaimini::ResOfTrpLagna() const
{
    return {};
}

bool clsJaimini::SignsAspect(int a, int b)
{
    return {};
}

bool clsJaimini::JAspectedBy(int s, int p) const
{
    return {};
}

bool clsJaimini::JAspByMalefic(int s) const
{
    return {};
}

bool clsJaimini::JAspByBenefic(int s) const
{
    return {};
}

int clsJaimini::CountPltInSignMB(int s, int kind) const
{
    return {};
}

bool clsJaimini::IfPlanetJAspects(int p, int q, double &x) const
{
    return {};
}

bool clsJaimini::IfPlanetJAspects(int p, int q) const
{
    return {};
}

bool clsJaimini::IfDrekPlanetJAspects(int p, int q) const
{
    return {};
}

bool clsJaimini::IfNavPlanetJAspects(int p, int q) const
{
    return {};
}

bool clsJaimini::JMalefic(int p)
{
    return {};
}

bool clsJaimini::JBenefic(int p)
{
    return {};
}

int clsJaimini::PlanetFrontalSign(int p) const
{
    return {};
}

int clsJaimini::FrontalSign(int p) const
{
    return {};
}

int clsJaimini::PlanetLateralSignA(int p) const
{
    return {};
}

int clsJaimini::PlanetLateralSignB(int p) const
{
    return {};
}

int clsJaimini::FrontalAspectSign(int p) const
{
    return {};
}

int clsJaimini::FrontalAspectNameSign(int s)
{
    return {};
}

std::pair<int, int> clsJaimini::LateralAspectNameSigns(int s)
{
    return {};
}

QString clsJaimini::FrontalAspectName(int s) const
{
    return {};
}

QString clsJaimini::LateralAspectName(int s) const
{
    return {};
}

double clsJaimini::PlanetWeight(int p)
{
    return {};
}

double clsJaimini::SignPlanetScore(int k) const
{
    return {};
}

int clsJaimini::ReckoningPoint(int a, int b) const
{
    return {};
}

double clsJaimini::ReckoningPointLongi(int a, int b) const
{
    return {};
}

int clsJaimini::StrongerPlanet(int a, int b) const
{
    return {};
}

int clsJaimini::StrongerOfThree(int a, int b, int c) const
{
    return {};
}

int clsJaimini::LordOfAquarius() const
{
    return {};
}

int clsJaimini::LordOfScorpio() const
{
    return {};
}

int clsJaimini::AK8DLord() const
{
    return {};
}

int clsJaimini::Brahma() const
{
    return {};
}

int clsJaimini::NominalBrahma() const
{
    return {};
}

int clsJaimini::AlternateBrahma() const
{
    return {};
}

int clsJaimini::Rudra() const
{
    return {};
}

int clsJaimini::ApraniRudra() const
{
    return {};
}

int clsJaimini::PraniRudra() const
{
    return {};
}

int clsJaimini::Maheshwara() const
{
    return {};
}

int clsJaimini::StrongerTrineSign(int a, int b) const
{
    return {};
}

std::vector<std::pair<int, int>> clsJaimini::PlanetsByQuadrants(int s) const
{
    return {};
}
