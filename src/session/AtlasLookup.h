// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The shipped atlas in memory (City.tsv and Country.tsv of data/atlas), with the look-ups
// that the entry screen and the command line make: name-prefix searches and the exact
// "NAME[,COUNTRY]" place. Names compare without case and without accents.

#include <QString>
#include <QStringList>

#include <vector>

// One row of the City table.
struct AtlasPlace
{
    QString City;     // name of the place
    QString Lat;      // three digits of degrees and two of minutes: "02838"
    QString Longy;    // the same for the longitude: "07713"
    QString NOSO;     // "N" or "S"
    QString EaWe;     // "E" or "W"
    QString Country;  // name of the country, as in the Country table
    QString GMTDIFF;  // standard offset now, "+05.30"
    QString TimeZone; // IANA name of the place's zone, "Asia/Kolkata"
};

// One row of the Country table.
struct AtlasCountry
{
    QString Name;     // name of the country
    QString GMTDIF;   // standard offset now of its capital, "+05.30"
    QString TimeZone; // IANA name of the capital's zone
};

// The answer to an exact place look-up.
struct AtlasMatch
{
    enum Outcome { Found, Ambiguous, NotFound };
    Outcome outcome = NotFound;
    const AtlasPlace *place = nullptr;          // the place, when Found
    std::vector<const AtlasPlace *> candidates; // Ambiguous: the places it could be; NotFound: near names
    int more = 0;                               // Ambiguous: places beyond the listed candidates
};

class AtlasLookup
{
public:
    // Reads City.tsv and Country.tsv from a folder; false with a message when unreadable.
    bool Load(const QString &folder, QString *error = nullptr);
    // Reads tables City and Country of a records database file (RECOS.Dat).
    bool LoadDatabase(const QString &datFile, QString *error = nullptr);
    // Reads the two files by path.
    bool LoadFiles(const QString &cityFile, const QString &countryFile, QString *error = nullptr);

    // All places and all countries, in file order.
    const std::vector<AtlasPlace> &Places() const { return m_places; }
    const std::vector<AtlasCountry> &Countries() const { return m_countries; }

    // Places whose name starts with namePrefix and whose country starts with countryPrefix
    // (empty: any), in name order; at most limit of them (0: all).
    std::vector<const AtlasPlace *> FindPlaces(const QString &namePrefix, const QString &countryPrefix = QString(),
                                               int limit = 0) const;
    // Countries whose name starts with prefix, in name order; at most limit (0: all).
    std::vector<const AtlasCountry *> FindCountries(const QString &prefix, int limit = 0) const;
    // The country of that name, or null.
    const AtlasCountry *FindCountry(const QString &name) const;
    // The place "NAME" or "NAME,COUNTRY" (the country may be a prefix). A name holding a
    // comma is first tried whole. An exact name comes first; failing that, a name that is the
    // prefix of exactly one place names it, and of several is ambiguous (up to maxCandidates
    // listed). An unknown country lists the places of that name or prefix anywhere.
    AtlasMatch Resolve(const QString &text, int maxCandidates = 20) const;

    // The search form of a name: no accents, case-folded, typographic apostrophes straight.
    static QString Fold(const QString &text);

private:
    struct Key
    {
        QString name;
        QString country;
        int row;
    };
    std::vector<const AtlasPlace *> exactNames(const QString &foldedName) const;
    // The places of that country: of its exact name if any, else of countries starting with it.
    static std::vector<const AtlasPlace *> ofCountry(const std::vector<const AtlasPlace *> &places,
                                                     const QString &foldedCountry);
    void setRows(const std::vector<QStringList> &cityRows, const std::vector<QStringList> &countryRows);

    std::vector<AtlasPlace> m_places;
    std::vector<AtlasCountry> m_countries;
    std::vector<Key> m_placeIndex;   // by folded name, then file order
    std::vector<Key> m_countryIndex; // by folded name
};
