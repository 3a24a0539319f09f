-- SPDX-License-Identifier: AGPL-3.0-or-later
-- LANGS.Dat: one row a language, with the font sizes of its pages.
CREATE TABLE Language (
  Name         TEXT COLLATE NOCASE,
  Directory    TEXT,
  Include      INTEGER,
  HeaderSize   INTEGER,
  NormalSize   INTEGER,
  SubHeadSize  INTEGER,
  KundliSize   INTEGER,
  EngSize      INTEGER,
  SmallSize    INTEGER,
  TextSize     INTEGER,
  TextHeadSize INTEGER,
  HeadBold     INTEGER,
  SubHeadBold  INTEGER,
  Extended     INTEGER
);
