"""The pages of the software sampler: a handbook and three tools, each a single
page with its few lines of script."""

from disc_pages import page

FORM = """
  .box { background: #F2F6F8; border: 1px solid #D5E0E6; border-radius: 8px; padding: 22px 26px; max-width: 520px; }
  input, select, button { font: inherit; padding: 6px 9px; border: 1px solid #B7C7D0; border-radius: 5px; background: #FFF; }
  button { background: #1C5D7F; color: #FFF; border-color: #1C5D7F; cursor: pointer; margin-right: 6px; }
  label { display: block; margin: 10px 0 4px; }
  .result { font: 34px/1.3 Georgia, serif; margin: 18px 0 0; color: #1C5D7F; }
"""

HANDBOOK = """
<h1>Handbook</h1>
<p class="lead">The three tools of the Northlight Sampler on one page.</p>
<h2>Converter</h2>
<p>Type a number, choose the two units, and read the result as you type. Lengths, weights and temperatures
are kept apart, so that nobody turns a mile into a pound.</p>
<table>
<tr><th>You type</th><th>from</th><th>to</th><th>You read</th></tr>
<tr><td>5</td><td>mile</td><td>kilometre</td><td>8.047</td></tr>
<tr><td>72</td><td>degree F</td><td>degree C</td><td>22.22</td></tr>
</table>
<p><a href="../apps/converter.html">Open the converter</a></p>
<h2>Colour mixer</h2>
<p>Move the three sliders for red, green and blue. The field shows the colour, and its number stands below,
ready to be copied into a page or a drawing.</p>
<p><a href="../apps/mixer.html">Open the colour mixer</a></p>
<h2>Tea timer</h2>
<p>Choose three, four or five minutes, or type your own. The page's title counts down too, so that you see it
while you work on something else.</p>
<p><a href="../apps/timer.html">Open the tea timer</a></p>
<h2>Removing the tools</h2>
<p>There is nothing to remove: the tools run from the disc and keep nothing on your computer.</p>
"""

CONVERTER = """
<h1>Converter</h1>
<p class="lead">Lengths, weights and temperatures.</p>
<div class="box">
<label for="n">Number</label><input id="n" value="5">
<label for="a">From</label><select id="a"></select>
<label for="b">To</label><select id="b"></select>
<p class="result" id="r"></p>
</div>
"""

CONVERTER_SCRIPT = """
// Every unit: kind, factor to the kind's base unit, offset added before scaling.
var units = {
  'metre': ['length', 1, 0], 'kilometre': ['length', 1000, 0], 'inch': ['length', 0.0254, 0],
  'foot': ['length', 0.3048, 0], 'mile': ['length', 1609.344, 0],
  'gram': ['weight', 1, 0], 'kilogram': ['weight', 1000, 0], 'ounce': ['weight', 28.349523, 0], 'pound': ['weight', 453.59237, 0],
  'degree C': ['heat', 1, 0], 'degree F': ['heat', 5 / 9, -32]
};
function el(id) { return document.getElementById(id); }
function fill(box, kind) {
  box.innerHTML = '';
  for (var u in units) if (!kind || units[u][0] === kind) box.add(new Option(u));
}
function show() {
  var from = units[el('a').value], to = units[el('b').value], n = parseFloat(el('n').value);
  var out = (n + from[2]) * from[1] / to[1] - to[2];
  el('r').textContent = isNaN(n) ? 'Type a number' : +out.toPrecision(5) + ' ' + el('b').value;
}
el('n').oninput = el('b').onchange = show;
el('a').onchange = function () { fill(el('b'), units[el('a').value][0]); show(); };
fill(el('a')); el('a').value = 'mile'; el('a').onchange(); el('b').value = 'kilometre'; show();
"""

MIXER = """
<h1>Colour mixer</h1>
<p class="lead">Three sliders, one colour.</p>
<div class="box">
<label for="red">Red</label><input id="red" type="range" min="0" max="255" value="31">
<label for="green">Green</label><input id="green" type="range" min="0" max="255" value="138">
<label for="blue">Blue</label><input id="blue" type="range" min="0" max="255" value="140">
<p id="field" style="height:120px;border-radius:8px"></p>
<p class="result" id="number"></p>
</div>
"""

MIXER_SCRIPT = """
var names = ['red', 'green', 'blue'];
function show() {
  var number = '#';
  names.forEach(function (n) {
    number += ('0' + (+document.getElementById(n).value).toString(16)).slice(-2).toUpperCase();
  });
  document.getElementById('field').style.background = number;
  document.getElementById('number').textContent = number;
}
names.forEach(function (n) { document.getElementById(n).oninput = show; });
show();
"""

TIMER = """
<h1>Tea timer</h1>
<p class="lead">For tea and other short waits.</p>
<div class="box">
<button onclick="start(3)">3 minutes</button><button onclick="start(4)">4 minutes</button><button onclick="start(5)">5 minutes</button>
<label for="m">or your own, in minutes</label><input id="m" size="4" value="12">
<button onclick="start(parseFloat(document.getElementById('m').value))">Start</button>
<p class="result" id="left">0:00</p>
</div>
"""

TIMER_SCRIPT = """
var end = 0, beat = 0;
function start(minutes) {
  if (!(minutes > 0)) return;
  end = Date.now() + minutes * 60000;
  clearInterval(beat);
  beat = setInterval(show, 250);
  show();
}
function show() {
  var left = Math.max(0, Math.round((end - Date.now()) / 1000));
  var text = Math.floor(left / 60) + ':' + ('0' + left % 60).slice(-2);
  document.getElementById('left').textContent = left ? text : 'Ready';
  document.title = left ? text : 'Ready';
  if (!left) clearInterval(beat);
}
"""


def make_pages(disc):
    page(disc / "docs" / "handbook.html", "Northlight handbook", HANDBOOK)
    page(disc / "apps" / "converter.html", "Converter", CONVERTER, style=FORM, script=CONVERTER_SCRIPT)
    page(disc / "apps" / "mixer.html", "Colour mixer", MIXER, style=FORM, script=MIXER_SCRIPT)
    page(disc / "apps" / "timer.html", "Tea timer", TIMER, style=FORM, script=TIMER_SCRIPT)
