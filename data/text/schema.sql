-- SPDX-License-Identifier: AGPL-3.0-or-later
-- The text tables of one language database (STUFF/<LangDir>/<LangDir>.Dat).
--
-- Every table has one row shape: Head, the key; Val, the text shown, Null allowed;
-- and, in the tables looked up by two keys, Category. Keys are compared without
-- regard to case (COLLATE NOCASE on the columns, and so on their indexes), so
-- "Gen" and "GEN" name the same category and Head = 'direct' finds "DIRECT".
-- Several rows with one key are allowed; a look-up takes the first in row order.

-- Type 1: labels, names and short texts of the whole program, grouped by category.
CREATE TABLE CNVT (
  Head     TEXT NOT NULL COLLATE NOCASE,
  Val      TEXT,
  Category TEXT NOT NULL DEFAULT '' COLLATE NOCASE
);
CREATE INDEX CNVT_Key ON CNVT (Category, Head);

-- Type 2: the paragraph of a yoga.
CREATE TABLE YOGAS (
  Head TEXT NOT NULL COLLATE NOCASE,
  Val  TEXT
);
CREATE INDEX YOGAS_Key ON YOGAS (Head);

-- Type 3: annual reading texts.
CREATE TABLE VPHALA (
  Head TEXT NOT NULL COLLATE NOCASE,
  Val  TEXT
);
CREATE INDEX VPHALA_Key ON VPHALA (Head);

-- Type 4: marriage reading paragraphs.
CREATE TABLE MarMatch (
  Head TEXT NOT NULL COLLATE NOCASE,
  Val  TEXT
);
CREATE INDEX MarMatch_Key ON MarMatch (Head);

-- Type 5: results of two planets in aspect, Head "Sun-Moon:CNJ" and the like.
CREATE TABLE ASP (
  Head TEXT NOT NULL COLLATE NOCASE,
  Val  TEXT
);
CREATE INDEX ASP_Key ON ASP (Head);

-- Type 6: general predictions.
CREATE TABLE FORTUNE (
  Head     TEXT NOT NULL COLLATE NOCASE,
  Val      TEXT,
  Category TEXT NOT NULL DEFAULT '' COLLATE NOCASE
);
CREATE INDEX FORTUNE_Key ON FORTUNE (Category, Head);

-- Type 7: the display name of a yoga.
CREATE TABLE YOGNAME (
  Head TEXT NOT NULL COLLATE NOCASE,
  Val  TEXT
);
CREATE INDEX YOGNAME_Key ON YOGNAME (Head);

-- Type 8: nakshatra results; Category is the nakshatra's word.
CREATE TABLE Nakshatra (
  Head     TEXT NOT NULL COLLATE NOCASE,
  Val      TEXT,
  Category TEXT NOT NULL DEFAULT '' COLLATE NOCASE
);
CREATE INDEX Nakshatra_Key ON Nakshatra (Category, Head);

-- Type 9: house lords in houses, planets in houses and in signs.
CREATE TABLE Bhava (
  Head     TEXT NOT NULL COLLATE NOCASE,
  Val      TEXT,
  Category TEXT NOT NULL DEFAULT '' COLLATE NOCASE
);
CREATE INDEX Bhava_Key ON Bhava (Category, Head);

-- Type 10: electional texts.
CREATE TABLE Muhu (
  Head     TEXT NOT NULL COLLATE NOCASE,
  Val      TEXT,
  Category TEXT NOT NULL DEFAULT '' COLLATE NOCASE
);
CREATE INDEX Muhu_Key ON Muhu (Category, Head);

-- Type 11: daily texts.
CREATE TABLE Daily (
  Head     TEXT NOT NULL COLLATE NOCASE,
  Val      TEXT,
  Category TEXT NOT NULL DEFAULT '' COLLATE NOCASE
);
CREATE INDEX Daily_Key ON Daily (Category, Head);

-- Type 12: transit texts.
CREATE TABLE Transits (
  Head TEXT NOT NULL COLLATE NOCASE,
  Val  TEXT
);
CREATE INDEX Transits_Key ON Transits (Head);
