// SPDX-License-Identifier: AGPL-3.0-or-later
#include "varsha/clsVarshaYoga.h"

#include "sky/Functions.h"
#include "sky/clsPlanets.h"

#include <array>

namespace {

// The faster and the slower planet of each Ithasala and Easarapha, rules 1..21.
using Pairs = std::array<std::array<int, 2>, 21>;
inline constexpr Pairs kIthasala{{
    {7, 2}, {7, 3}, {7, 1}, {7, 4}, {7, 5}, {7, 6}, {2, 3}, {2, 1}, {2, 4}, {2, 5}, {2, 6},
    {3, 1}, {3, 4}, {3, 5}, {3, 6}, {1, 4}, {1, 5}, {1, 6}, {4, 5}, {4, 6}, {5, 6},
}};
inline constexpr Pairs kEasarapha{{
    {7, 2}, {7, 3}, {7, 1}, {7, 4}, {7, 5}, {7, 6}, {2, 3}, {2, 1}, {2, 4}, {2, 5}, {2, 6},
    {3, 4}, {3, 5}, {3, 6}, {3, 1}, {1, 6}, {1, 5}, {1, 4}, {4, 6}, {4, 5}, {5, 6},
}};

} // namespace

// ---- The vocabulary of the rules ----
namespace {

struct Tajika
{
    const clsPlanets &c;
    double K(int p) const { return c.KrishAmsha(p); }
    bool aspect(int a, int b) const { return c.PlanetDegAspect(a, b) != 0; }
    double orb(int a, int b) const { return c.PlanetMutOrb(a, b); }
    bool retro(int p) const { return c.RetroGrade(p); }
    int house(int p) const { return Norm12(c.Sign(p) - c.Sign(0) + 1); }
    bool trika(int p) const { return c.PlanetInTrika(p, 0); }
    bool strong(int p) const { return clsPlanets::CheckIfExalted(p, c.Sign(p)) || clsPlanets::CheckOwnHouse(p, c.Sign(p)); }
    bool debi(int p) const { return clsPlanets::CheckIfDebi(p, c.Sign(p)); }
    bool combust(int p) const { return clsPlanets::CheckIfCombust(p, c.PlanetLongi(1), c.PlanetLongi(p)).value_or(false); }
    bool weak(int p) const
    {
        const int h = house(p);
        return h == 6 || h == 8 || h == 12 || debi(p) || combust(p) || retro(p);
    }
    int faster(int a, int b) const { return clsPlanets::PlanetGetFaster(a, b); }
    int slower(int a, int b) const { return clsPlanets::PlanetGetSlower(a, b); }
    // The slower one's degree less the faster one's.
    double lead(int a, int b) const { return K(slower(a, b)) - K(faster(a, b)); }
    // "P/Q/=label", the names in the chart's language.
    QString named(std::initializer_list<int> planets, const char *label) const
    {
        QString out;
        for (int p : planets)
            out += c.PlanetName(p) + QLatin1Char('/');
        return out + QLatin1Char('=') + QString::fromLatin1(label);
    }
};

} // namespace

QString clsVarshaYoga::CheckRelation(int code)
{
    switch (code) {
    case 1: return QStringLiteral("Conjunction");
    case 2: return QStringLiteral("Square");
    case 3: return QStringLiteral("Opposition");
    case 4: return QStringLiteral("Trine");
    case 5: return QStringLiteral("Sextile");
    default: return {};
    }
}

QString clsVarshaYoga::Ishkabala() const
{
    const Tajika t{c};
    for (int p = 1; p <= 7; ++p)
        if (t.house(p) % 3 == 0)
            return {};
    return QStringLiteral("Ishkabala Yoga Exists");
}

QString clsVarshaYoga::Induvara() const
{
    const Tajika t{c};
    for (int p = 1; p <= 7; ++p)
        if (t.house(p) % 3 != 0)
            return {};
    return QStringLiteral("Induvara Yoga Exists");
}

QString clsVarshaYoga::Ithasala(int n) const
{
    if (n < 1 || n > 21)
        return {};
    const Tajika t{c};
    const int f = kIthasala[static_cast<size_t>(n - 1)][0], s = kIthasala[static_cast<size_t>(n - 1)][1];
    if (t.trika(f))
        return {};
    if (!(n >= 16 && n <= 18) && s != 1 && t.combust(s))
        return {};
    if (t.debi(s) || t.trika(s))
        return {};
    if ((f == 1 || s == 1) && (t.debi(1) || t.trika(1) || c.CheckHighestDebiDeg(1)))
        return {};
    if (f != 7 && f != 1 && t.retro(f))
        return {};
    if (!t.aspect(f, s) || !(t.K(s) > t.K(f)))
        return {};
    const double d = t.K(s) - t.K(f), m = t.orb(f, s);
    const QString tail = QLatin1Char('/') + clsPlanets::PlanetNameFullEng(f) + QLatin1Char('/') + clsPlanets::PlanetNameFullEng(s)
                         + QStringLiteral(",Aspect=") + CheckRelation(c.PlanetDegAspect(f, s));
    if (d <= 1)
        return QStringLiteral("Purna Ithasala") + tail;
    if (d <= m)
        return QStringLiteral("Vartaman Ithasala") + tail;
    if (d <= m + 1)
        return QStringLiteral("Bhavishyat Ithasala") + tail;
    return {};
}

QString clsVarshaYoga::Easarapha(int n) const
{
    if (n < 1 || n > 21)
        return {};
    const Tajika t{c};
    const int f = kEasarapha[static_cast<size_t>(n - 1)][0], s = kEasarapha[static_cast<size_t>(n - 1)][1];
    if (f != 7 && f != 1 && t.retro(f))
        return {};
    if (!t.aspect(f, s) || !(t.K(f) > t.K(s)))
        return {};
    const double d = t.K(f) - t.K(s);
    const QString tail = QLatin1Char('/') + clsPlanets::PlanetNameFullEng(f) + QLatin1Char('/') + clsPlanets::PlanetNameFullEng(s)
                         + QStringLiteral(",Aspect=") + CheckRelation(c.PlanetDegAspect(f, s));
    if (d <= 1)
        return QStringLiteral("Musaripha") + tail;
    if (d <= t.orb(f, s))
        return QStringLiteral("Easarapha") + tail;
    return {};
}

QString clsVarshaYoga::Nakta() const
{
    const Tajika t{c};
    for (int i = 1; i <= 7; ++i)
        for (int j = 1; j <= 7; ++j)
            for (int l = 1; l <= 7; ++l) {
                if (i == j || i == l || j == l || !t.aspect(i, j) || !t.aspect(i, l) || !t.aspect(j, l))
                    continue;
                if (!clsPlanets::PlanetIsFaster(l, i) || !clsPlanets::PlanetIsFaster(l, j))
                    continue;
                for (int x : {i, j})
                    if (t.K(x) - t.K(l) <= t.orb(x, l) && !t.retro(l) && t.K(x) > t.K(l))
                        return t.named({i, j, l}, "Nakta Yoga Exists");
            }
    return {};
}

QString clsVarshaYoga::Yamaya() const
{
    const Tajika t{c};
    for (int i = 1; i <= 7; ++i)
        for (int j = 1; j <= 7; ++j)
            for (int l = 1; l <= 7; ++l) {
                if (i == j || i == l || j == l || t.aspect(i, j) || !t.aspect(i, l) || !t.aspect(j, l))
                    continue;
                if (!clsPlanets::PlanetIsSlower(l, i) || !clsPlanets::PlanetIsSlower(l, j))
                    continue;
                for (int x : {i, j})
                    if (t.K(l) - t.K(x) <= t.orb(x, l) && !t.retro(x) && t.K(l) > t.K(x))
                        return t.named({i, j, l}, "Yamaya Yoga Exists");
            }
    return {};
}

QString clsVarshaYoga::Kamboola() const
{
    const Tajika t{c};
    for (int i = 1; i <= 6; ++i)
        for (int j = 1; j <= 6; ++j) {
            if (i == j || !t.aspect(i, j) || !(t.aspect(i, 7) || t.aspect(j, 7)))
                continue;
            for (int x : {i, j}) {
                const double d = t.K(x) - t.K(7);
                if (d > 0 && d <= t.orb(x, 7))
                    return t.named({i, j}, "Kamboola Yoga Exists");
            }
        }
    return {};
}

namespace {
// The pair of the Kamboola grades, or {0, 0} when none stands.
std::array<int, 2> kamboolaPair(const Tajika &t)
{
    for (int i = 1; i <= 6; ++i)
        for (int j = 1; j <= 6; ++j)
            if (i != j && t.aspect(i, j) && (t.aspect(i, 7) || t.aspect(j, 7))
                && (t.K(i) - t.K(7) <= t.orb(i, 7) || t.K(j) - t.K(7) <= t.orb(j, 7)))
                return {i, j};
    return {0, 0};
}
} // namespace

QString clsVarshaYoga::Kamboola1() const
{
    const Tajika t{c};
    if (Kamboola().isEmpty())
        return {};
    const auto [i, j] = kamboolaPair(t);
    return i && t.strong(7) && t.strong(i) && t.strong(j) ? QStringLiteral("Very Strong Kamboola Yoga is present") : QString();
}

QString clsVarshaYoga::Kamboola2() const
{
    const Tajika t{c};
    if (Kamboola().isEmpty())
        return {};
    const auto [i, j] = kamboolaPair(t);
    return i && t.strong(7) && !t.strong(i) && !t.strong(j) ? QStringLiteral("Kamboola Yoga is present in good strength.") : QString();
}

QString clsVarshaYoga::Kamboola3() const
{
    const Tajika t{c};
    if (Kamboola().isEmpty())
        return {};
    const auto [i, j] = kamboolaPair(t);
    return i && !t.strong(7) && !t.strong(i) && !t.strong(j) ? QStringLiteral("Kamboola Yoga is present in moderate strength.")
                                                              : QString();
}

namespace {
// Two planets in the Moon's sign: `near` just past the Moon within twice their orb, `early` in the
// first degree of the sign.
QString gairi(const Tajika &t, bool swap)
{
    for (int i = 1; i <= 6; ++i)
        for (int j = 1; j <= 6; ++j) {
            if (i == j || t.c.Sign(i) != t.c.Sign(7) || t.c.Sign(j) != t.c.Sign(7))
                continue;
            const int near = swap ? j : i, early = swap ? i : j;
            if (t.K(7) <= t.K(near) && t.K(near) - t.K(7) <= 2 * t.orb(near, 7) && t.K(early) <= 1)
                return t.named({i, j}, "GairiKamboola");
        }
    return {};
}
} // namespace

QString clsVarshaYoga::GairiKamboola1() const { return gairi(Tajika{c}, false); }

QString clsVarshaYoga::GairiKamboola2() const { return gairi(Tajika{c}, true); }

QString clsVarshaYoga::Dupparikutha() const
{
    const Tajika t{c};
    for (int i = 1; i <= 7; ++i)
        for (int j = 1; j <= 7; ++j) {
            if (i == j || !t.aspect(i, j))
                continue;
            const int f = t.faster(i, j), s = t.slower(i, j);
            if (!t.retro(f) && t.K(f) <= t.K(s) && t.strong(s))
                return QStringLiteral("Dupparikutha Yoga Exists");
        }
    return {};
}

namespace {
// The Lagna's lord in the sign next to the Moon's and another planet next to it, each beyond
// twice its orb: step +1 after the Moon, -1 before it.
QString khalwasara(const Tajika &t, int step)
{
    const clsPlanets &c = t.c;
    if (c.Sign(0) == 4)
        return {};
    const int j = clsPlanets::SignLord(c.Sign(0));
    if (j < 1 || j > 6)
        return {};
    for (int i = 1; i <= 6; ++i) {
        if (i == j || c.Sign(j) != Norm12(c.Sign(7) + step) || c.Sign(i) != Norm12(c.Sign(j) + step))
            continue;
        const double fromMoon = step > 0 ? Norm360(c.PlanetLongi(j) - c.PlanetLongi(7)) : Norm360(c.PlanetLongi(7) - c.PlanetLongi(j));
        const double fromJ = step > 0 ? Norm360(c.PlanetLongi(i) - c.PlanetLongi(j)) : Norm360(c.PlanetLongi(j) - c.PlanetLongi(i));
        if (fromMoon > 2 * t.orb(j, 7) && fromJ > 2 * t.orb(i, j))
            return t.named({i, j}, "Khalwasara Yoga Exists");
    }
    return {};
}
} // namespace

QString clsVarshaYoga::Khalwasara1() const { return khalwasara(Tajika{c}, 1); }

QString clsVarshaYoga::Khalwasara2() const { return khalwasara(Tajika{c}, -1); }

QString clsVarshaYoga::Manahoo() const
{
    const Tajika t{c};
    for (int i = 1; i <= 7; ++i)
        for (int j = 1; j <= 7; ++j) {
            if (i == j || i == 4 || i == 6 || j == 4 || j == 6 || !t.aspect(i, j))
                continue;
            const int f = t.faster(i, j);
            if (t.lead(i, j) <= t.orb(i, j) && t.aspect(f, 4) && !t.retro(f) && t.aspect(f, 6))
                return QStringLiteral("Manahoo Yoga Exists");
        }
    return {};
}

namespace {
// The Lagna's lord weak, I weak, J strong; the pair that must be in applying aspect is I and J, or
// the Lagna's lord and J.
QString duttota(const Tajika &t, bool withLord)
{
    const int l = clsPlanets::SignLord(t.c.Sign(0));
    if (t.strong(l))
        return {};
    for (int i = 1; i <= 7; ++i)
        for (int j = 1; j <= 7; ++j) {
            if (i == j || i == l || j == l || t.strong(i) || !t.strong(j))
                continue;
            const int a = withLord ? l : i;
            if (!t.aspect(a, j))
                continue;
            const double d = t.lead(a, j);
            if (d > 0 && d <= t.orb(a, j))
                return t.named({i, j}, withLord ? "Duttota2 Yoga Exists" : "Duttota1 Yoga Exists");
        }
    return {};
}
} // namespace

QString clsVarshaYoga::Duttota1() const { return duttota(Tajika{c}, false); }

QString clsVarshaYoga::Duttota2() const { return duttota(Tajika{c}, true); }

QString clsVarshaYoga::Durupha() const
{
    const Tajika t{c};
    for (int i = 1; i <= 7; ++i)
        for (int j = 1; j <= 7; ++j)
            if (i != j && t.weak(i) && t.weak(j) && t.aspect(i, j) && t.lead(i, j) <= t.orb(i, j))
                return QStringLiteral("Durupha Yoga Exists");
    return {};
}

QString clsVarshaYoga::Kuttha() const
{
    const Tajika t{c};
    for (int i = 1; i <= 7; ++i) {
        if (c.Sign(i) != c.Sign(0))
            continue;
        for (int j = 1; j <= 7; ++j) {
            const int h = t.house(j);
            const bool place = h == 4 || h == 7 || h == 10 || h == 5 || h == 8 || h == 11;
            if (j != i && place && t.aspect(i, j) && t.lead(i, j) <= t.orb(i, j))
                return QStringLiteral("Kuttha Yoga Exists");
        }
    }
    return {};
}

QString clsVarshaYoga::Thamvira() const
{
    const Tajika t{c};
    for (int i = 1; i <= 7; ++i) {
        if (t.K(i) < 29 || t.K(i) > 30 || !(t.strong(i) || c.PlanetVargottama(i)))
            continue;
        for (int j = 1; j <= 6; ++j)
            if (j != i && clsPlanets::PlanetIsFaster(i, j) && !t.retro(i) && c.Sign(j) == Norm12(c.Sign(i) + 1)
                && t.K(j) + 30 - t.K(i) <= t.orb(i, j))
                return QStringLiteral("Thamvira Yoga Exists");
    }
    return {};
}

QString clsVarshaYoga::Radda1() const
{
    const Tajika t{c};
    for (int i = 1; i <= 6; ++i)
        for (int j = 2; j <= 6; ++j)
            if (i != j && t.aspect(i, j) && t.retro(i) && t.retro(j))
                return QStringLiteral("Radda1 Yoga Exists");
    return {};
}

namespace {
// I the faster, each turned back or within the Sun's orb, and the slower ahead within the orb.
bool raddaCommon(const Tajika &t, int i, int j)
{
    return clsPlanets::PlanetIsFaster(i, j) && (t.retro(i) || t.c.WithinOrbOfSun(i)) && (t.retro(j) || t.c.WithinOrbOfSun(j))
           && t.lead(i, j) <= t.orb(i, j);
}
bool kendra(const Tajika &t, int p) { return t.c.PlanetInKendra(p, 0); }
bool apoklima(const Tajika &t, int p) { return t.c.PlanetInApoklima(p, 0); }
} // namespace

QString clsVarshaYoga::Radda2() const
{
    const Tajika t{c};
    for (int i = 1; i <= 6; ++i)
        for (int j = 1; j <= 6; ++j) {
            if (i == j || !t.aspect(i, j))
                continue;
            if ((kendra(t, i) && apoklima(t, j)) || (kendra(t, j) && apoklima(t, i)))
                return {};
            if (raddaCommon(t, i, j))
                return QStringLiteral("Radda2 Yoga Exists");
        }
    return {};
}

QString clsVarshaYoga::Radda3() const
{
    const Tajika t{c};
    for (int i = 1; i <= 6; ++i)
        for (int j = 1; j <= 6; ++j)
            if (i != j && t.aspect(i, j) && kendra(t, i) && apoklima(t, j) && raddaCommon(t, i, j))
                return QStringLiteral("Radda3 Yoga Exists");
    return {};
}

QString clsVarshaYoga::Radda4() const
{
    const Tajika t{c};
    for (int i = 1; i <= 6; ++i)
        for (int j = 1; j <= 6; ++j)
            if (i != j && t.aspect(i, j) && kendra(t, j) && apoklima(t, i) && raddaCommon(t, i, j))
                return QStringLiteral("Radda4 Yoga Exists");
    return {};
}

QList<clsVarshaYoga::Report> clsVarshaYoga::Reports() const
{
    QList<Report> out;
    const auto add = [&out](const QString &key, const QString &text) {
        if (!text.isEmpty())
            out.append({key, text});
    };
    add(QStringLiteral("Ishkabala"), Ishkabala());
    add(QStringLiteral("Induvara"), Induvara());
    for (int n = 1; n <= 21; ++n)
        add(QStringLiteral("Ithasala%1").arg(n), Ithasala(n));
    for (int n = 1; n <= 21; ++n)
        add(QStringLiteral("Easarapha%1").arg(n), Easarapha(n));
    add(QStringLiteral("Nakta"), Nakta());
    add(QStringLiteral("Yamaya"), Yamaya());
    add(QStringLiteral("Kamboola"), Kamboola());
    add(QStringLiteral("Kamboola1"), Kamboola1());
    add(QStringLiteral("Kamboola2"), Kamboola2());
    add(QStringLiteral("Kamboola3"), Kamboola3());
    add(QStringLiteral("GairiKamboola1"), GairiKamboola1());
    add(QStringLiteral("GairiKamboola2"), GairiKamboola2());
    add(QStringLiteral("Dupparikutha"), Dupparikutha());
    add(QStringLiteral("Khalwasara1"), Khalwasara1());
    add(QStringLiteral("Khalwasara2"), Khalwasara2());
    add(QStringLiteral("Manahoo"), Manahoo());
    add(QStringLiteral("Duttota1"), Duttota1());
    add(QStringLiteral("Duttota2"), Duttota2());
    add(QStringLiteral("Durupha"), Durupha());
    add(QStringLiteral("Kuttha"), Kuttha());
    add(QStringLiteral("Thamvira"), Thamvira());
    return out;
}

QString clsVarshaYoga::CAndPTajakYogas() const
{
    QString out;
    for (const Report &r : Reports())
        out += r.Text + QStringLiteral("\r\n\r\n");
    return out;
}
