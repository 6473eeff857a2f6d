// Copyright The Tintmill authors. All rights reserved.

#include "Host/Gallery/GalleryStyle.h"

namespace TintmillHost
{
const char* const GalleryStyle = R"css(:root { color-scheme: dark }
* { box-sizing: border-box }
body { margin: 0; background: #242424; color: #d4d4d4; font: 15px/1.5 Roboto, "Segoe UI", "Helvetica Neue", Arial, sans-serif }
header, main { max-width: 1720px; margin: 0 auto; padding: 0 clamp(12px, 2.2vw, 36px) }
header { padding-top: 1.6rem; padding-bottom: .2rem }
h1 { font-size: 1.5rem; font-weight: 500; margin: 0; color: #f0f0f0; overflow-wrap: anywhere }
h2 { font-size: 1.1rem; font-weight: 500; margin: 2rem 0 .8rem; padding-bottom: .35rem; border-bottom: 1px solid #3d3d3d; color: #e6e6e6 }
a { color: inherit; text-decoration-color: #6f6f6f }
.facts { margin: .3rem 0 0; color: #a2a2a2; display: flex; flex-wrap: wrap; gap: .1rem 1.4rem }
.chapter { display: grid; grid-template-columns: repeat(auto-fill, minmax(min(100%, 520px), 1fr)); gap: 1.4rem; align-items: start; margin-top: 1.4rem }
.chapter h2 { grid-column: 1 / -1; margin: .8rem 0 -.4rem }
.step { margin: 0; background: #303030; border: 1px solid #181818; border-radius: 5px; overflow: hidden; scroll-margin: 1rem }
.step:target { border-color: #8c8c8c }
.step.failed { border-color: #d0584c }
.shown { position: relative; background: #1a1a1a }
.pic { display: block; position: relative; width: 100%; background-size: 100% 100%; background-repeat: no-repeat; cursor: zoom-in; print-color-adjust: exact; -webkit-print-color-adjust: exact }
.part { position: absolute; background-size: 100% 100%; background-repeat: no-repeat; print-color-adjust: exact; -webkit-print-color-adjust: exact }
.compare { position: relative; overflow: hidden }
.compare .with { position: absolute; top: 0; left: 0; clip-path: inset(0 0 0 var(--at)) }
.compare i { position: absolute; top: 0; bottom: 0; left: var(--at); width: 2px; margin-left: -1px; background: #f2f2f2; box-shadow: 0 0 3px #000; pointer-events: none }
.compare i::after { content: ""; position: absolute; left: -10px; top: calc(50% - 11px); width: 22px; height: 22px; border-radius: 11px; border: 2px solid #f2f2f2; background: #2428; box-shadow: 0 0 3px #000 }
.compare b { position: absolute; bottom: 8px; left: 8px; padding: 0 .5rem; border-radius: 3px; background: #000a; color: #eee; font-weight: 400; font-size: .8rem; pointer-events: none }
.compare b + b { left: auto; right: 8px }
.compare input { position: absolute; inset: 0; width: 100%; height: 100%; margin: 0; opacity: 0; cursor: ew-resize }
.compare:focus-within { outline: 2px solid #e0e0e0; outline-offset: -2px }
.enlarge { position: absolute; top: 8px; right: 8px; width: 30px; height: 30px; padding: 0; border: 0; border-radius: 4px; background: #000a; color: #eee; font: 18px/1 sans-serif; cursor: zoom-in; opacity: 0 }
.shown:hover .enlarge, .enlarge:focus-visible { opacity: 1 }
@media (hover: none) { .enlarge { opacity: .8 } }
:focus-visible { outline: 2px solid #e0e0e0; outline-offset: 2px }
figcaption { padding: .6rem .9rem .7rem }
figcaption p { margin: 0; display: flex; gap: .6rem; align-items: baseline }
.caption { flex: 1; overflow-wrap: anywhere }
.number { min-width: 1.7em; padding: 0 .35em; border-radius: 3px; background: #454545; color: #f0f0f0; text-align: center; text-decoration: none; font-size: .8rem }
time { color: #9a9a9a; font-size: .8rem; white-space: nowrap; font-variant-numeric: tabular-nums }
figcaption .problem { display: block; margin-top: .3rem; color: #ff8a7d; overflow-wrap: anywhere }
details { margin-top: .25rem; font-size: .85rem; color: #a8a8a8 }
summary { cursor: pointer; width: max-content }
details ol { margin: .3rem 0 0; padding-left: 2.2em }
code { font: .8rem/1.5 "Roboto Mono", "DejaVu Sans Mono", Consolas, monospace; color: #cfcfcf; overflow-wrap: anywhere }
.filter { display: flex; flex-wrap: wrap; gap: .4rem 1rem; align-items: center; margin-bottom: .6rem; font-size: .85rem }
.filter input[type=search] { width: min(100%, 22rem); padding: .35rem .6rem; border: 1px solid #4a4a4a; border-radius: 4px; background: #1a1a1a; color: #e6e6e6; font: inherit }
.filter label { display: flex; gap: .35rem; align-items: center; cursor: pointer; white-space: nowrap }
.filter input[type=checkbox] { accent-color: #9a9a9a; margin: 0 }
.filter output { color: #9a9a9a }
.lines { margin: 0 0 2.5rem; padding: .7rem .9rem; max-height: 75vh; overflow: auto; list-style: none; background: #181818; border: 1px solid #111; border-radius: 5px; font: .8rem/1.55 "Roboto Mono", "DejaVu Sans Mono", Consolas, monospace; color: #b9b9b9; overflow-wrap: anywhere; tab-size: 4 }
.lines li { white-space: pre-wrap }
.command { color: #f4f4f4 }
.lines .command::before { content: "> "; color: #8a8a8a }
.output { color: #d4d4d4 }
.error { color: #ff8a7d }
.warning { color: #f0c85a }
.display { color: #e6e6e6 }
.log { color: #a9a9a9 }
.verbose { color: #7d7d7d }
dialog { position: fixed; inset: 0; width: 100vw; height: 100vh; max-width: none; max-height: none; margin: 0; padding: 0; border: 0; background: #1c1c1c; color: #d4d4d4; overflow: hidden }
.stage { position: absolute; inset: 10px 10px 52px; display: flex; overflow: auto; outline: none }
.stage .shown { margin: auto; flex: none; background: none }
.stage .enlarge { display: none }
.stage .pic { cursor: zoom-in }
.stage.full .pic { cursor: zoom-out; image-rendering: pixelated }
.below { position: absolute; left: 64px; right: 64px; bottom: 0; height: 50px; margin: 0; display: flex; align-items: center; justify-content: center; gap: .8rem; text-align: center; line-height: 1.25; overflow: hidden }
dialog button { position: absolute; width: 44px; height: 44px; bottom: 3px; padding: 0; border: 0; border-radius: 6px; background: #3a3a3a; color: #eee; font: 24px/1 sans-serif; cursor: pointer }
dialog button:hover { background: #505050 }
.to-previous { left: 10px }
.to-next { right: 10px }
dialog .to-close { top: 10px; right: 10px; bottom: auto; font-size: 18px; background: #000a }
@media (max-width: 560px) { body { font-size: 14px } .below { font-size: .85rem } .chapter { gap: 1rem } }
@media print { body { background: #fff; color: #000 } .step { break-inside: avoid } .filter, .enlarge { display: none } }
)css";

const char* const GalleryScript = R"js('use strict';
const all = (selector, root) => Array.from((root || document).querySelectorAll(selector));
const steps = all('.step').filter(step => step.querySelector('.shown'));
const view = document.getElementById('view');
const stage = view.querySelector('.stage');
let current = 0;
let full = false;

const fit = () => {
	const shown = stage.querySelector('.shown');
	if (shown) {
		const width = Number(shown.dataset.width), height = Number(shown.dataset.height);
		const scale = Math.min(stage.clientWidth / width, stage.clientHeight / height);
		shown.style.width = (full ? width / window.devicePixelRatio : width * scale) + 'px';
		stage.classList.toggle('full', full);
	}
};
const show = index => {
	current = (index + steps.length) % steps.length;
	full = false;
	stage.replaceChildren(steps[current].querySelector('.shown').cloneNode(true));
	const range = stage.querySelector('input');
	if (range) { range.value = steps[current].querySelector('input').value; }
	const caption = steps[current].querySelector('.caption').textContent;
	view.querySelector('.below').textContent = (current + 1) + ' / ' + steps.length + '  ' + caption;
	if (!view.open) { view.showModal(); }
	fit();
};
const step_to = offset => {
	if (view.open) { show(current + offset); return; }
	current = Math.min(Math.max(current + offset, 0), steps.length - 1);
	steps[current].scrollIntoView({ block: 'nearest' });
	steps[current].querySelector('.enlarge').focus({ preventScroll: true });
};

document.addEventListener('input', event => {
	if (event.target.type === 'range') {
		event.target.parentNode.style.setProperty('--at', event.target.value + '%');
	}
});
document.addEventListener('click', event => {
	const step = event.target.closest('.step');
	if (step) {
		current = Math.max(steps.indexOf(step), 0);
		if (event.target.closest('.pic, .enlarge')) { show(current); }
	}
	else if (event.target.closest('.stage .pic')) {
		const box = stage.querySelector('.shown').getBoundingClientRect();
		const x = (event.clientX - box.left) / box.width, y = (event.clientY - box.top) / box.height;
		full = !full;
		fit();
		stage.scrollTo(stage.scrollWidth * x - stage.clientWidth / 2, stage.scrollHeight * y - stage.clientHeight / 2);
	}
	else if (event.target === stage) { view.close(); }
});
document.addEventListener('keydown', event => {
	const typing = event.target.matches('input');
	const offset = { ArrowLeft: -1, ArrowRight: 1 }[event.key];
	if (offset === undefined || typing || steps.length === 0 || event.altKey || event.ctrlKey || event.metaKey) { return; }
	event.preventDefault();
	step_to(offset);
});
window.addEventListener('resize', fit);
view.querySelector('.to-previous').addEventListener('click', () => step_to(-1));
view.querySelector('.to-next').addEventListener('click', () => step_to(1));
view.querySelector('.to-close').addEventListener('click', () => view.close());
view.addEventListener('close', () => stage.replaceChildren());

const search = document.querySelector('.filter input[type=search]');
const boxes = all('.filter input[type=checkbox]');
const filter = () => {
	const kinds = new Set(boxes.filter(box => box.checked).map(box => box.value));
	const text = search.value.toLowerCase();
	let count = 0;
	for (const line of all('.lines li')) {
		line.hidden = !(kinds.has(line.className) ? line.textContent.toLowerCase().includes(text) : false);
		count += line.hidden ? 0 : 1;
	}
	document.querySelector('.filter output').textContent = count + ' shown';
};
search.addEventListener('input', filter);
boxes.forEach(box => box.addEventListener('change', filter));
)js";
}
