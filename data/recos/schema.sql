-- SPDX-License-Identifier: AGPL-3.0-or-later
-- The records database RECOS.Dat: persons, the atlas, page sets and display themes.

CREATE TABLE Person (
  Name      TEXT COLLATE NOCASE,
  Sex       INTEGER,
  Day       INTEGER,
  Month     INTEGER,
  Year      INTEGER,
  Hour      INTEGER,
  Minutes   INTEGER,
  seconds   INTEGER,
  AMPM      INTEGER,
  Country   TEXT,
  City      TEXT,
  LatDeg    INTEGER,
  LatMT     INTEGER,
  TextNS    TEXT,
  LongDeg   INTEGER,
  LongMT    INTEGER,
  TextEW    TEXT,
  GMTDIFF   TEXT,
  TCorrVal  TEXT,
  Tcorrinde INTEGER
);
CREATE INDEX PersonName ON Person (Name);
-- The cursor's row order: persons by name.
CREATE VIEW qryPersonName AS SELECT rowid AS PersonId, * FROM Person ORDER BY Name;

CREATE TABLE City (
  City     TEXT COLLATE NOCASE,
  Lat      TEXT,
  Longy    TEXT,
  NOSO     TEXT,
  EaWe     TEXT,
  Country  TEXT COLLATE NOCASE,
  GMTDIFF  TEXT,
  TimeZone TEXT
);
CREATE INDEX CityName ON City (City);
CREATE INDEX CityCountry ON City (Country, City);

CREATE TABLE Country (
  Name     TEXT COLLATE NOCASE,
  GMTDIF   TEXT,
  TimeZone TEXT
);
CREATE INDEX CountryName ON Country (Name);

CREATE TABLE PrintMods (
  Name     TEXT,
  HoroMode TEXT,
  file     TEXT
);

CREATE TABLE DisplayThemes (
  ThemeName TEXT,
  file      TEXT
);
