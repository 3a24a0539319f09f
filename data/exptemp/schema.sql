-- SPDX-License-Identifier: AGPL-3.0-or-later
-- The person exchange file (.JKP one person, .JKD any number): one table Person.
CREATE TABLE Person (
  Name    TEXT,
  Sex     INTEGER,
  Day     INTEGER,
  Month   INTEGER,
  Year    INTEGER,
  Hour    INTEGER,
  Minutes INTEGER,
  seconds INTEGER,
  AMPM    INTEGER,
  Country TEXT,
  LatDeg  INTEGER,
  LatMT   INTEGER,
  TextNS  TEXT,
  LongDeg INTEGER,
  LongMT  INTEGER,
  TextEW  TEXT,
  City    TEXT,
  GMTDIFF TEXT
);
