// SPDX-License-Identifier: AGPL-3.0-or-later
#include "jaimini/JaiminiLagnaRows.h"

#include "jaimini/clsJaimini.h"
#include "sky/clsPlanets.h"

std::vector<JaiminiLagnaRow> JaiminiLagnaRows(const clsJaimini &jm)
{
    const clsPlanets &c = jm.Chart();
    const auto sign = [](const char *head, int s) { return JaiminiLagnaRow{QString::fromLatin1(head), s, std::nullopt}; };
    const auto longi = [](const char *head, int s, double l) { return JaiminiLagnaRow{QString::fromLatin1(head), s, l}; };
    return {
        longi("Janm", jm.Sign(0), jm.PlanetLongi(0)),
        sign("DrekkTrad", c.PrediVarga(0, 3)),
        sign("DrekkPrav", jm.DrekkanaLagna(2)),
        sign("DrekkSom", jm.DrekkanaLagna(3)),
        sign("NavTrad", jm.NavamshSign(0)),
        sign("NavKri", jm.NavamshLagna(2)),
        sign("ArudTrad", jm.ArudhaLagna(1)),
        sign("ArudCond", jm.ArudhaLagna(2)),
        sign("UpaTrad", jm.UpaPadaLagna(1)),
        sign("UpaCond", jm.UpaPadaLagna(2)),
        sign("Swamsha", jm.Swamsha()),
        sign("Karak", jm.KarakamsaLagna()),
        sign("Pak", jm.PakaLagna()),
        sign("HoraTrad", jm.HoraLagna(1)),
        sign("HoraVri", jm.HoraLagna(2)),
        sign("HoraSav", jm.HoraLagna(3)),
        sign("Bhav", jm.BhavaLagna()),
        longi("Ghatika", jm.GhatikaLagnaSign(), jm.GhatikaLagnaLongi()),
        sign("SapGhat", jm.SapadaGhatikaLagna()),
        sign("Ayur", jm.AyurLagna()),
        sign("Varnada", jm.VarnadaLagnaSign(1)),
        longi("Shree", jm.ShreeLagna(), jm.ShreeLagnaLongi()),
        sign("Indu", jm.InduLagna()),
        sign("Tara", jm.TaraLagna()),
        sign("Nak", jm.NakshatraLagna()),
        longi("Divya", jm.DivyaLagnaSign(), jm.DivyaLagnaLongi()),
        sign("Tripavana", jm.TripravanaLagna()),
        longi("Sphuta", jm.SphutaYogaLagnaSign(), jm.SphutaYogaLagnaLongi()),
    };
}
