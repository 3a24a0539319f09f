-- SPDX-License-Identifier: AGPL-3.0-or-later
-- Saturn's sign entries, 1900 to 2100, one table for each ayanamsa family (SADESAT.Dat).
-- RASHI: the sign Saturn enters; dt and exitDT: dates as YYYYMMDD; val: Saturn's longitude on
-- the day of entry. Rows are written by tools/sadesat from Swiss Ephemeris.
CREATE TABLE LEPH (RASHI TEXT NOT NULL, dt TEXT NOT NULL, val REAL NOT NULL, exitDT TEXT NOT NULL);
CREATE TABLE BEPH (RASHI TEXT NOT NULL, dt TEXT NOT NULL, val REAL NOT NULL, exitDT TEXT NOT NULL);
CREATE TABLE KEPH (RASHI TEXT NOT NULL, dt TEXT NOT NULL, val REAL NOT NULL, exitDT TEXT NOT NULL);
CREATE TABLE SEPH (RASHI TEXT NOT NULL, dt TEXT NOT NULL, val REAL NOT NULL, exitDT TEXT NOT NULL);
CREATE INDEX LEPH_Rashi ON LEPH (RASHI, dt);
CREATE INDEX BEPH_Rashi ON BEPH (RASHI, dt);
CREATE INDEX KEPH_Rashi ON KEPH (RASHI, dt);
CREATE INDEX SEPH_Rashi ON SEPH (RASHI, dt);
