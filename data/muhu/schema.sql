-- SPDX-License-Identifier: AGPL-3.0-or-later
-- MUHU.DAT: the acts of the electional search, the points of each element and the
-- code of each act's prediction text.

-- One row an act. val is the list of rules the search tests (CODE:VALUE or CODE,
-- separated by ","); Elements the codes the highest possible score is summed over.
CREATE TABLE MUHU (
  MCode    TEXT COLLATE NOCASE PRIMARY KEY,
  MName    TEXT COLLATE NOCASE,
  CATEGORY TEXT COLLATE NOCASE,
  val      TEXT,
  Elements TEXT,
  Score    TEXT
);
CREATE INDEX MuhuNameCategory ON MUHU (MName, CATEGORY);

-- Points of an element when it fires (negative for what an act must avoid); maxeffect 1
-- counts the element in the highest possible score whether it fired or not.
CREATE TABLE SCORE (
  ELEMENT   TEXT COLLATE NOCASE PRIMARY KEY,
  Presence  INTEGER,
  maxeffect INTEGER
);

-- Name of an act to the key of its text in the Muhu table of the text database.
CREATE TABLE MuhuConvert (
  Muhuname    TEXT COLLATE NOCASE PRIMARY KEY,
  MuhuPredcode
);
