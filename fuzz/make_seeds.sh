#!/usr/bin/env bash
# SPDX-License-Identifier: AGPL-3.0-or-later
# Makes the seed inputs of the fuzz targets in fuzz/corpus/ again (they are committed; run this
# only to change them). The database seeds use the shipped schemas with small pages, so that
# they stay a few kilobytes and the fuzzer spends its time inside them.
set -euo pipefail
here=$(cd "$(dirname "$0")/.." && pwd)
corpus="$here/fuzz/corpus"
data="$here/data"

# db <file> <schema.sql> [sql...]: a fresh database of that schema, with the statements run.
db() {
  local file=$1 schema=$2
  shift 2
  rm -f "$file"
  { echo "PRAGMA page_size=512;"; cat "$schema"; printf '%s\n' "$@"; } | sqlite3 "$file"
}

rm -rf "${corpus:?}"/{person_import,tagged_text,language_db,languages,atlas}
mkdir -p "$corpus"/{person_import,tagged_text,language_db,languages,atlas}

# --- person_import: exchange files as the program writes them, and ones it must refuse.
cols="Name,Sex,Day,Month,Year,Hour,Minutes,seconds,AMPM,Country,LatDeg,LatMT,TextNS,LongDeg,LongMT,TextEW,City,GMTDIFF"
asha="('Asha',2,2,9,2000,14,5,5,2,'India',28,38,'N',77,12,'E','Delhi','+05.30')"
ravi="('Ravi',1,29,2,2000,0,0,0,1,'India',13,5,'N',80,17,'E','Chennai','+05.30')"
mira="('Mira',2,31,12,1969,24,0,0,2,'United States',40,42,'N',74,0,'W','New York','-05.00')"
x="$data/exptemp/schema.sql"
db "$corpus/person_import/one.JKP" "$x" "INSERT INTO Person ($cols) VALUES $asha;"
db "$corpus/person_import/three.JKD" "$x" "INSERT INTO Person ($cols) VALUES $asha,$ravi,$mira;"
db "$corpus/person_import/empty.JKD" "$x"
db "$corpus/person_import/day45.JKP" "$x" \
  "INSERT INTO Person ($cols) VALUES ('Bad',1,45,1,2000,10,0,0,1,'India',28,38,'N',77,12,'E','Delhi','+05.30');"
db "$corpus/person_import/nulls.JKD" "$x" "INSERT INTO Person ($cols) VALUES $asha;" "INSERT INTO Person (Name) VALUES (NULL);"
db "$corpus/person_import/texts.JKP" "$x" \
  "INSERT INTO Person ($cols) VALUES ('Tex''t',2,'02','09','2000','14','05','05',2,'India','028','38','n','077','12','e','Delhi',5.5);"
db "$corpus/person_import/no-city.JKP" /dev/stdin <<<"CREATE TABLE Person (Name TEXT, Sex INTEGER, Day INTEGER);"
printf 'Asha\t2\t02/09/2000\n' >"$corpus/person_import/plain-text.JKP"

# --- tagged_text: key, item, text.
printf '%s\n%s\n%s' 1 P7 '[HEAD1][F]P7,P4,P5[/F][N]P2,P3[/N][E]P6,P8,P9[/E][/HEAD1][HEAD2][F]P1[/F][/HEAD2]' \
  >"$corpus/tagged_text/relations"
printf '%s\n%s\n%s' 4 P5 '[HEAD4][N]P4,P5[/F][/HEAD4]' >"$corpus/tagged_text/closing-tag-decides"
printf '%s\n%s\n%s' Horse HorseS '[HEADHorse]HorseS-4|ElephantS-2|SheepS-2.75|[/HEADHorse][HEADCat]RatS-0|[/HEADCat]' \
  >"$corpus/tagged_text/scores"
printf '%s\n%s\n%s' 12 P1 '[/HEAD12][HEAD12][HEAD12]P1/[/HEAD12' >"$corpus/tagged_text/unclosed"

# --- language_db: the schema of the language databases with a row of each kind.
db "$corpus/language_db/FUZZ.Dat" "$data/text/schema.sql" \
  "INSERT INTO CNVT (Category, Head, Val) VALUES ('Rashi','3','Gemini'),('Gen','YogaHead','Yogas'),('Gen','Predictions',NULL),('Symbols','.',','),('Symbols',':','h'),('Symbols','/','-');" \
  "INSERT INTO ASP (Head, Val) VALUES ('Sun-Moon:CNJ',NULL);" \
  "INSERT INTO YOGAS (Head, Val) VALUES ('Sun-Moon:CNJ','A paragraph.');" \
  "INSERT INTO FORTUNE (Category, Head, Val) VALUES ('Rashi','3','x');"
printf 'SQLite format 3\0' >"$corpus/language_db/header-only.Dat"

# --- languages: the table of languages.
db "$corpus/languages/LANGS.Dat" "$data/langs/schema.sql" \
  "INSERT INTO Language VALUES ('English','ENGLISH',1,14,9,11,9,9,8,10,12,1,1,0),('Hindi','HINDI',0,16,10,12,10,9,8,11,13,0,1,1),(NULL,NULL,NULL,NULL,NULL,NULL,NULL,NULL,NULL,NULL,NULL,NULL,NULL,NULL);"

# --- atlas: the City and Country tables of the records database.
db "$corpus/atlas/RECOS.Dat" <(sed -n '/^CREATE TABLE City/,/^CREATE INDEX CountryName/p' "$data/recos/schema.sql") \
  "INSERT INTO City VALUES ('Delhi','02838','07712','N','E','India','+05.30','Asia/Kolkata'),('Delhi','04217','07455','N','W','United States','-05.00','America/New_York'),('São Paulo','02332','04637','S','W','Brazil','-03.00','America/Sao_Paulo'),('Dehra Dun','03019','07803','N','E','India','+05.30','Asia/Kolkata'),('','','','','','','','');" \
  "INSERT INTO Country VALUES ('India','+05.30','Asia/Kolkata'),('United States','-05.00','America/New_York'),('Brazil','-03.00','America/Sao_Paulo');"

# --- score files of the match: the built files (run after a build), and two broken ones.
for t in graha:SCGRAHA rasi:SCRASI yoni:SCYONI; do
  rm -rf "${corpus:?}/score_${t%%:*}"
  mkdir -p "$corpus/score_${t%%:*}"
  cp "$here/build/STUFF/COMMON/${t#*:}.DAT" "$corpus/score_${t%%:*}/"
done
printf '[H1]P1-99999999999999999999999|P2--|P3|[/H1][H2]P' >"$corpus/score_graha/broken.DAT"
printf '[HEAD1]S1-1e308|S2-nan|[/HEAD1' >"$corpus/score_yoni/broken.DAT"

ls -l "$corpus"/*
