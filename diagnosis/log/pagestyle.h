// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

/// The style sheet of the pages.
constexpr const char pageStyle[] = R"css(
:root {
    color-scheme: light dark;
    --paper: #fff; --panel: #f5f7f9; --edge: #d3dae2; --ink: #1a1f26; --faint: #55606e;
    --link: #0b57d0; --pin: #b8005c; --hit: #fdeaf4; --warn: #fff4d6; --warn-edge: #a15500;
    --refused: #c5221f; --taken: #137333; --stuck: #8c1d5c; --rejected: #a15500;
    --returned: #7b3fbf; --unknown: #55606e;
    --idle: #d3dae2; --take: #8ab4f8; --keep: #81c995; --back: #fcc95f; --bad: #b3261e;
    --busy: #b9c3cf; --pay: #cdb8f2; --on-state: #10141a; --on-idle: #10141a; --on-bad: #fff;
}
@media screen and (prefers-color-scheme: dark) {
    :root {
        --paper: #14171c; --panel: #1c2128; --edge: #3b4552; --ink: #e6e9ee; --faint: #a7b1bf;
        --link: #8ab4f8; --pin: #ff8ac4; --hit: #3a2331; --warn: #332a12; --warn-edge: #ffb454;
        --refused: #ff8a80; --taken: #6fd08c; --stuck: #ff9ed2; --rejected: #ffb454; --returned: #cfa5ff;
        --unknown: #a7b1bf; --idle: #3b4552; --busy: #5a6675; --on-idle: #e6e9ee; --bad: #d9473d;
    }
}
* { box-sizing: border-box; }
body { margin: 0 auto; padding: 1.5rem 1rem 4rem; max-width: 72rem; background: var(--paper);
    color: var(--ink); font: 1rem/1.5 system-ui, "DejaVu Sans", sans-serif; overflow-wrap: anywhere; }
h1 { font-size: 1.6rem; line-height: 1.2; margin: 0 0 1rem; }
h2 { font-size: 1.2rem; margin: 2rem 0 .5rem; }
h3 { font-size: 1rem; margin: 0 0 .4rem; }
a { color: var(--link); }
:focus-visible { outline: 3px solid var(--link); outline-offset: 2px; border-radius: 3px; }
.skip { position: absolute; left: -100rem; }
.skip:focus { position: static; }

.top { display: flex; flex-wrap: wrap; gap: 1rem; align-items: stretch; }
.card { flex: 1 1 19rem; min-width: 0; padding: 1rem; background: var(--panel);
    border: 1px solid var(--edge); border-radius: 8px; }
.card ul, .warning ul { margin: 0; padding-left: 1.2rem; }
.file { color: var(--faint); font-weight: normal; }
.warning { margin: 0 0 1rem; padding: .8rem 1rem; background: var(--warn);
    border-left: 4px solid var(--warn-edge); border-radius: 4px; }
table { border-collapse: collapse; width: 100%; font-variant-numeric: tabular-nums; }
th, td { padding: .15rem 0 .15rem .8rem; text-align: right; border-bottom: 1px solid var(--edge); }
th:first-child { padding-left: 0; text-align: left; }
td, thead th { white-space: nowrap; }
tbody th { font-weight: normal; }
tbody .part th { padding-left: .8rem; color: var(--faint); }
tbody tr:last-child > * { border-bottom: 0; }

.legend { margin-top: 1rem; font-size: .875rem; }
.legend ul { display: flex; flex-wrap: wrap; gap: .2rem 1.1rem; padding: 0; margin: 0 0 .4rem;
    list-style: none; }
.legend p { margin: 0; color: var(--faint); }
.key { display: inline-block; width: 1.4rem; height: .8rem; margin-right: .35rem; vertical-align: -.05rem;
    border-radius: 2px; }
.glyph { width: 1.05rem; height: 1.05rem; vertical-align: -.16rem; margin-right: .3rem; }

details { margin: .75rem 0; border: 1px solid var(--edge); border-radius: 8px; }
summary { display: flex; flex-wrap: wrap; gap: .2rem 1rem; padding: .55rem 1rem; cursor: pointer;
    background: var(--panel); border-radius: 8px; }
summary::before { content: "\25B8"; width: .8rem; color: var(--faint); }
details[open] > summary::before { content: "\25BE"; }
details[open] > summary { border-radius: 8px 8px 0 0; border-bottom: 1px solid var(--edge); }
summary strong { margin-right: auto; }
.fold { content-visibility: auto; contain-intrinsic-size: auto 30rem; }
.picture { overflow-x: auto; padding: .25rem 1rem 0; }
.picture svg { display: block; width: 100%; min-width: 44rem; height: auto; }
.doubt { margin: .6rem 1rem 0; color: var(--warn-edge); }
ol { margin: 0; padding: .25rem 1rem .75rem; list-style: none; }
li.answer, li.contradiction { padding: .35rem .5rem .35rem 1.85rem; border-radius: 4px; text-indent: -1.35rem; }
li.answer:target, li.contradiction:target { background: var(--hit); outline: 2px solid var(--pin); }
li.answer > a:first-child, li.contradiction > a:first-child { color: inherit; font-weight: 600; text-decoration-color: var(--edge);
    text-underline-offset: .2em; }
li.answer.quiet > a:first-child { font-weight: normal; }
.see { color: var(--faint); }
.see a { white-space: nowrap; }
.none { padding: .5rem 1rem; margin: 0; color: var(--faint); }

svg text { font-size: 11px; fill: var(--ink); }
svg .name { font-size: 13px; font-weight: 600; }
svg .row, svg .tick { fill: var(--faint); }
svg .row { text-anchor: end; }
svg .tick, svg .value { text-anchor: middle; }
svg .grid { stroke: var(--edge); stroke-dasharray: 2 4; }
svg .base { stroke: var(--edge); }
.refused { color: var(--refused); }
.taken { color: var(--taken); }
.stuck { color: var(--stuck); }
.wrong { color: var(--refused); }
.rejected { color: var(--rejected); }
.returned { color: var(--returned); }
.unknown { color: var(--unknown); }
li.answer, li.contradiction, li.answer > a, li.contradiction > a { color: var(--ink); }
use { fill: currentColor; }
a.mark:target use, a.mark:hover use { stroke: var(--pin); stroke-width: 3px; }
a.mark:target .halo { visibility: visible; }
.halo, .pin { visibility: hidden; }
.halo { fill: none; stroke: var(--pin); stroke-width: 2.5px; }
.pin:target { visibility: visible; }
.pin path { fill: none; stroke: var(--pin); stroke-width: 2px; }
svg .pin text { fill: var(--pin); font-weight: 600; text-anchor: middle; }
.idle { fill: var(--idle); background: var(--idle); }
.take { fill: var(--take); background: var(--take); }
.keep { fill: var(--keep); background: var(--keep); }
.back { fill: var(--back); background: var(--back); }
.bad { fill: var(--bad); background: var(--bad); }
.busy { fill: var(--busy); background: var(--busy); }
.pay { fill: var(--pay); background: var(--pay); }
.idle, .take, .keep, .back, .bad, .busy, .pay { stroke: var(--paper); stroke-width: .75px; }
svg text.on { fill: var(--on-state); }
svg text.on-idle, svg text.on-busy { fill: var(--on-idle); }
svg text.on-bad { fill: var(--on-bad); }
svg .matter { fill: var(--bad); }
svg .matter:target { stroke: var(--pin); stroke-width: 4px; }
svg path.sum { fill: none; stroke: var(--link); stroke-width: 2px; }
svg path.limit { fill: none; stroke: var(--refused); stroke-width: 1.5px; stroke-dasharray: 7 4; }
svg path.excess { fill: none; stroke: var(--refused); stroke-width: 1.5px; stroke-dasharray: 2 2; }
svg text.limit { fill: var(--refused); text-anchor: end; }

.now .file { font-weight: normal; }
.now th { text-align: left; font-weight: normal; white-space: nowrap; }
.now td { white-space: normal; }
.now th[colspan] { padding-top: .4rem; font-weight: 600; white-space: normal; }
.now tr:not(:first-child) th { padding-left: .8rem; }
.now tr.all > * { font-weight: 600; }
.period { padding: .4rem 1rem .8rem; overflow-x: auto; }
.period p { margin: .4rem 0; color: var(--faint); font-size: .875rem; }
.bars { margin: .2rem 0 .8rem; }
.bars > tbody > tr > * { border: 0; width: 1%; }
.bars > tbody > tr > td:nth-child(2) { width: 97%; }
.bars th { white-space: nowrap; }
.bar { display: block; width: 100%; height: 16px; }
.wide th, .wide td { text-align: right; }
.wide th:first-child { text-align: left; white-space: nowrap; }
.wide .quiet { color: var(--faint); }
.sure, svg path.outmark { fill: var(--link); }
.may { fill: url(#hatch); stroke: var(--link); stroke-width: 1px; }
svg path.hatch { fill: var(--link); fill-opacity: .45; }
svg path.atleast { fill: none; stroke: var(--link); stroke-width: 2px; }
svg path.out { fill: none; stroke: var(--ink); stroke-width: 1.5px; stroke-dasharray: 5 3; }
svg path.outmark, svg text.taken-out { fill: var(--ink); font-weight: 600; }
@media (max-width: 44rem) {
    summary strong { flex: 1 1 12rem; }
    .wide thead { position: absolute; left: -100rem; }
    .wide tr { display: flex; flex-wrap: wrap; gap: 0 1rem; align-items: baseline; padding: .3rem 0;
        border-bottom: 1px solid var(--edge); }
    .wide th:first-child { min-width: 5.5rem; font-weight: 600; }
    .wide tr > *, .wide tbody tr:last-child > * { border: 0; padding: 0; }
    .wide td::before { content: attr(data-name) " "; color: var(--faint); font-size: .875rem; }
    .wide td:empty, .wide td.quiet:nth-last-child(n+4) { display: none; }
}

@media print {
    :root { color-scheme: light; }
    body { max-width: none; padding: 0; font-size: 10pt; }
    .fold { content-visibility: visible; border: 0; }
    .fold::details-content { content-visibility: visible; display: block; }
    .picture { overflow: visible; padding: 0; }
    .picture svg { min-width: 0; break-inside: avoid; }
    li.answer, li.contradiction { break-inside: avoid; }
    .see, .skip, summary::before { display: none; }
    * { print-color-adjust: exact; }
}
)css";
