// Writes value-format-rows.txt: what an independent formatter, the npm package numfmt 4.0.1, shows for values of
// at most 15 significant digits. Run it in a folder where that package is installed, with the standard output
// going to the file. The rows are frozen: they are made anew only when a kind of format is added here.
import { format } from 'numfmt';

let state = 20240229;
function random() { // mulberry32: the same rows on every machine
  state = (state + 0x6d2b79f5) | 0;
  let t = Math.imul(state ^ (state >>> 15), 1 | state);
  t = (t + Math.imul(t ^ (t >>> 7), 61 | t)) ^ t;
  return ((t ^ (t >>> 14)) >>> 0) / 4294967296;
}
const upTo = n => Math.floor(random() * n);

// A number of `digits` significant digits, its first one worth 10^power; every third one ends in a five, and so
// lies halfway between two shorter ones.
function number(digits, power) {
  let text = String(1 + upTo(9));
  for (let i = 1; i < digits; ++i) text += upTo(10);
  if (upTo(3) === 0) text = text.slice(0, -1) + '5';
  return Number((upTo(3) === 0 ? '-' : '') + text[0] + '.' + text.slice(1) + 'e' + power);
}
const significant = value => value.toExponential().replace(/e.*|\D/g, '').length;

const integers = ['0', '#', '00', '0000', '#0', '##0', '#,##0', '#,###', '0,000', '000,000', '#,#'];
const decimals = ['', '.', '.0', '.00', '.000', '.0000', '.######', '.0#', '.00##', '.#', '.0000000000'];
const plain = integers.flatMap(i => decimals.map(d => i + d));
plain.push('.00', '.####', '.0#', '000-00-0000', '0-0', '00:00', '(000) 000-0000', '0.0 0', '0\\/0.0');
const scaled = ['0,', '0,,', '#,##0,', '#,##0.00,', '0.000,,', '#,', '0.0,"k"', '#,##0,,"M"', '0%', '0.0%', '0.00%',
  '#,##0.00%', '#.##%', '%0.0', '0%%', '0.0"%"', '0.0\\%'];
const lettered = ['"x"0.00', '0.00" V"', '0.0" \u00B0C"', '\\m0.0\\V', '$#,##0.00', '+0.0', '0.00 "\u2126"', '"R0 = "0.0000',
  '"0"0', '0"."00', '\\"0.0\\"', '-0.0', '"a;b"0.0', '\\;0'];
const signed = ['0.00;(0.00)', '+0.0;-0.0', '+0.0;-0.0;0', '0.00;-0.00;"zero"', '#,##0;(#,##0);"none"', '0.0;"minus "0.000',
  '"up "0;"down "0;"level"', '0.0000;-0.0000', '0%;(0%)', '0.0E+0;(0.00E+00)', '#.#;-#.#;0', '"a";"b";"c"'];
const scientific = ['0.00E+00', '0.0000E+00', '0E+0', '0E+00', '0.0E+000', '0.####E+00', '0.######E+0', '0.00E-00', '0.000E-0',
  '#.##E+0', '.000E+00', '00.00E+00', '000.0E+00', '##0.0E+0', '##0.000E+00', '0.00E+#0', '0.0E+##', '0.00E+00" V"',
  '-0.0E+00', '0.00000000000000E+00'];
// Left out, because it shows "000.0E+0" for a zero, where the mantissa has one digit here.
const noZero = new Set(['##0.0E+0', '##0.000E+00']);

const rows = 10000;
const kinds = [[plain, -6, 12], [scaled, -6, 12], [lettered, -5, 8], [signed, -5, 8], [scientific, -307, 307]];
const formats = kinds.flatMap(([list, low, high]) => list.map(f => [f, low, high]));
console.log(`# ${rows} numbers under ${formats.length} formats. A line "=FORMAT", then a line "VALUE<tab>TEXT" for each`);
console.log('# number. Agreed with an independent formatter, the npm package numfmt 4.0.1; made by value-format-rows.mjs.');
formats.forEach(([f, low, high], index) => {
  console.log('=' + f);
  const count = Math.floor(rows * (index + 1) / formats.length) - Math.floor(rows * index / formats.length);
  const values = noZero.has(f) ? [1] : [0];
  values.push(0.5, -0.5, 1.005, 2.5, 999.995, -0.001, 1234567.5);
  while (values.length < count) values.push(number(1 + upTo(upTo(2) ? 15 : 7), low + upTo(high - low + 1)));
  for (const value of values) {
    if (significant(value) > 15) throw new Error('too many digits: ' + value);
    console.log(value + '\t' + format(f, value));
  }
});
