// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT
"use strict";

const pause = 3000; // milliseconds between two questions
const patience = 5000; // with an answer
const freshFor = 10000; // after which what is shown counts as old
const mostRows = 300; // on the page at once
const mostFaults = 5; // of a row
const mostSpans = 50; // of each list of a history
const historyPause = 10000; // milliseconds between two looks into the history

const texts = JSON.parse(document.getElementById("texts").textContent);
const language = document.documentElement.lang;
const collator = new Intl.Collator(language, {numeric: true, sensitivity: "base"});
const conditions = Object.keys(texts.conditions); // worst first
const byId = id => document.getElementById(id);
const filters = byId("filters").elements;

const fill = (text, ...values) => values.reduce((filled, value, i) => filled.split("%" + (i + 1)).join(value), text);
const number = value => value.toLocaleString(language);

// What comes from outside, with what nobody sees written out.
function visible(text) {
    return String(text).replace(/[\p{Cc}\p{Cf}\p{Zl}\p{Zp}]/gu,
        hidden => "\\u" + hidden.codePointAt(0).toString(16).padStart(4, "0"));
}

// Children are elements or texts; nothing is ever taken as HTML.
function element(tag, attributes, ...children) {
    const made = document.createElement(tag);
    for (const [name, value] of Object.entries(attributes)) made.setAttribute(name, value);
    made.append(...children);
    return made;
}

function clockTime(time) {
    const pad = value => String(value).padStart(2, "0");
    return [time.getHours(), time.getMinutes(), time.getSeconds()].map(pad).join(":");
}

function dateTime(text) {
    if (!text) return "";
    const time = new Date(text);
    const pad = value => String(value).padStart(2, "0");
    return `${time.getFullYear()}-${pad(time.getMonth() + 1)}-${pad(time.getDate())} ${clockTime(time)}`;
}

// In its two largest units.
function duration(milliseconds) {
    const seconds = Math.max(0, Math.round(milliseconds / 1000));
    const units = [[86400, texts.days], [3600, texts.hours], [60, texts.minutes], [1, texts.seconds]];
    const first = Math.max(0, units.findIndex(([size]) => seconds >= size || size === 1));
    const [size, text] = units[first];
    const rest = units[first + 1];
    const more = size > 60 && Math.floor(seconds % size / rest[0]);
    return fill(text, Math.floor(seconds / size)) + (more ? " " + fill(rest[1], more) : "");
}

let data = null; // the last answer
let answered = 0; // when it came
let shownFrom = null; // of which moment it is
let isOld = false;
let isAsking = false;
let sorting = {column: "condition", isDown: false};
let open = null; // the kiosk whose history is shown
let history = null; // of that kiosk
let present = {}; // of the history: since when kiosks are as they are
const rows = new Map(); // by kiosk: its element, and what is in it

function setText(target, text) { // is not announced again while it stays
    if (target.textContent !== text) target.textContent = text;
}

function tellState() {
    const hasAnswer = data && Date.now() - answered < freshFor && !isOld;
    let text = "";
    if (!hasAnswer && !data) text = isOld ? texts.noAnswer : texts.reading;
    else if (!hasAnswer) text = fill(texts.noAnswerSince, clockTime(shownFrom));
    else if (!data.connected) {
        text = fill(texts.notConnected, clockTime(shownFrom)) + (data.fault ? " (" + visible(data.fault) + ")" : "");
    } else if (!data.ready) text = texts.notReady;
    else text = fill(texts.asOf, clockTime(shownFrom));
    const faults = hasAnswer ? data.faults : []; // of the worker
    if (faults.length > 0) text += " " + faults.map(visible).join(" ");
    if (present.fault !== undefined) text += " " + fill(texts.historyFault, visible(present.fault));
    const isPast = isOld || (data && (!hasAnswer || !data.connected));
    document.body.classList.toggle("old", Boolean(isPast));
    document.body.classList.toggle("doubtful", Boolean(data && (!data.ready || faults.length > 0 || present.fault !== undefined)));
    setText(byId("state"), text);
    const toSee = data ? conditions.filter(name => name !== "fine").reduce((sum, name) => sum + (data.counts[name] || 0), 0) : 0;
    document.title = (isPast ? "(?) " : data ? `(${number(toSee)}) ` : "") + texts.kiosks;
}

const timeOrder = (left, right) => (left ? Date.parse(left) : Infinity) - (right ? Date.parse(right) : Infinity) || 0;

// Since when a kiosk is as it is, by the history where that knows it. In that a silence begins when it is noticed, by
// the summary when the kiosk was heard of last.
function sinceOf(kiosk) {
    const known = present.now && Object.hasOwn(present.now, kiosk.kiosk) ? present.now[kiosk.kiosk] : null;
    const isSame = known && known.condition === kiosk.condition;
    return {time: [isSame ? known.since : null, kiosk.since].sort(timeOrder)[0], times: isSame ? known.times : 0};
}

const byName = (left, right) => collator.compare(left.kiosk, right.kiosk) || (left.kiosk < right.kiosk ? -1 : 1);
const orders = {
    condition: (left, right) => conditions.indexOf(left.condition) - conditions.indexOf(right.condition),
    kiosk: byName,
    since: (left, right) => timeOrder(sinceOf(left).time, sinceOf(right).time),
    time: (left, right) => timeOrder(left.time, right.time),
    fault: (left, right) => collator.compare(left.faults[0] || "", right.faults[0] || ""),
};

function wanted() {
    const name = filters.name.value.trim().toLowerCase();
    const found = data.kiosks.filter(kiosk =>
        (filters.all.checked || kiosk.condition !== "fine")
        && kiosk.kiosk.toLowerCase().includes(name)
        && (!filters.condition.value || kiosk.condition === filters.condition.value)
        && (!filters.region.value || kiosk.region === filters.region.value)
        && (!filters.reason.value || kiosk.causes.some(cause => cause.reason === filters.reason.value)));
    const order = orders[sorting.column];
    const sign = sorting.isDown ? -1 : 1;
    return found.sort((left, right) => sign * order(left, right) || byName(left, right));
}

function faultList(faults, most) {
    const list = element("ul", {});
    for (const fault of faults.slice(0, most)) list.append(element("li", {}, visible(fault)));
    if (faults.length > most) list.append(element("li", {}, fill(texts.moreFaults, number(faults.length - most))));
    return list;
}

function cells(kiosk) {
    const since = sinceOf(kiosk);
    const sinceCell = element("td", {role: "cell"}, since.time ? duration(Date.parse(data.time) - Date.parse(since.time)) : "");
    if (since.time) sinceCell.append(element("small", {}, fill(texts.sinceTime, dateTime(since.time))));
    if (since.times > 1) sinceCell.append(element("small", {}, fill(texts.times, number(since.times))));
    return [sinceCell, element("td", {role: "cell", "data-name": texts.last}, dateTime(kiosk.time)),
            element("td", {role: "cell"}, faultList(kiosk.faults, kiosk.kiosk === open ? kiosk.faults.length : mostFaults))];
}

// The row of a kiosk stays the same element, so that whoever is on it with the keyboard stays there.
function rowOf(kiosk) {
    let row = rows.get(kiosk.kiosk);
    if (!row) {
        const button = element("button", {type: "button"}, element("bdi", {}, visible(kiosk.kiosk)));
        button.addEventListener("click", () => showHistory(open === kiosk.kiosk ? null : kiosk.kiosk));
        const condition = element("td", {role: "cell"}, element("span", {}));
        const name = element("th", {role: "rowheader", scope: "row"}, button);
        row = {element: element("tr", {role: "row"}, condition, name), condition: condition.firstChild, button: button, shown: ""};
        rows.set(kiosk.kiosk, row);
    }
    const fresh = cells(kiosk);
    const shown = kiosk.condition + "\n" + fresh.map(cell => cell.textContent).join("\n");
    row.button.setAttribute("aria-expanded", String(kiosk.kiosk === open));
    if (shown !== row.shown) {
        row.shown = shown;
        row.condition.className = "condition " + kiosk.condition;
        row.condition.textContent = texts.conditions[kiosk.condition] || kiosk.condition;
        while (row.element.children.length > 2) row.element.lastChild.remove();
        row.element.append(...fresh);
    }
    return row.element;
}

function showRows() {
    const found = wanted();
    const place = found.findIndex(kiosk => kiosk.kiosk === open);
    const elements = [];
    found.slice(0, mostRows).forEach((kiosk, i) => {
        elements.push(rowOf(kiosk));
        if (i === place) elements.push(detailRow);
    });
    const focused = document.activeElement;
    const body = byId("rows");
    elements.forEach((each, i) => {
        if (body.children[i] !== each) body.insertBefore(each, body.children[i] || null);
    });
    while (body.children.length > elements.length) body.lastChild.remove();
    for (const [name, row] of rows) if (!row.element.isConnected) rows.delete(name);
    if (focused !== document.activeElement && focused.isConnected) focused.focus({preventScroll: true});
    if (open !== null && !detailRow.isConnected) open = null;

    const isFiltered = filters.name.value.trim() || filters.condition.value || filters.region.value || filters.reason.value;
    let more = "";
    if (found.length > mostRows) more = fill(texts.more, number(mostRows), number(found.length - mostRows));
    else if (found.length === 0) more = isFiltered ? texts.noMatch : texts.noneToSee;
    setText(byId("more"), more);
}

function setChoices(select, values, label) {
    const wantedValues = [...new Set(values)].filter(Boolean);
    if (select.value && !wantedValues.includes(select.value)) wantedValues.push(select.value);
    wantedValues.sort((left, right) => collator.compare(label(left), label(right)));
    const known = [...select.options].slice(1).map(option => option.value);
    if (known.join("\n") === wantedValues.join("\n")) return;
    const chosen = select.value;
    while (select.options.length > 1) select.options[1].remove();
    for (const value of wantedValues) select.append(element("option", {value: value}, visible(label(value))));
    select.value = chosen;
}

function show() {
    const [part, parts] = data.part.split("/").map(Number);
    byId("part").hidden = parts < 2;
    setText(byId("part"), fill(texts.part, part, parts));
    byId("counts").replaceChildren(...conditions.map(name => {
        const [before, after] = texts.count.replace("%2", texts.conditions[name]).split("%1");
        return element("li", {class: name}, before, element("b", {}, number(data.counts[name] || 0)), after);
    }));
    setChoices(filters.region, data.kiosks.map(kiosk => kiosk.region), value => value);
    setChoices(filters.reason, data.kiosks.flatMap(kiosk => kiosk.causes.map(cause => cause.reason)),
        value => texts.reasons[value] || value);
    showRows();
}

// A history

const detailCell = element("td", {role: "cell", colspan: "5"});
const detailRow = element("tr", {role: "row", class: "detail"}, detailCell);

function timeline(spans, now) {
    const svgElement = (tag, attributes) => {
        const made = document.createElementNS("http://www.w3.org/2000/svg", tag);
        for (const [name, value] of Object.entries(attributes)) made.setAttribute(name, value);
        return made;
    };
    const begin = Math.max(Date.parse(spans[0].began), now - 30 * 86400000);
    const at = time => 1000 * (Math.max(begin, time) - begin) / Math.max(1, now - begin);
    const line = svgElement("svg", {class: "line", viewBox: "0 0 1000 10", preserveAspectRatio: "none", role: "img",
                                    "aria-label": texts.timeline});
    for (const span of spans) {
        const left = at(Date.parse(span.began));
        const right = at(span.ended ? Date.parse(span.ended) : now);
        if (span.ended && Date.parse(span.ended) < begin) continue;
        const part = svgElement("rect", {class: span.condition, x: left, y: 0, width: Math.max(1, right - left), height: 10});
        const title = svgElement("title", {});
        title.textContent = `${texts.conditions[span.condition]}: ${dateTime(span.began)} – ${dateTime(span.ended)}`;
        part.append(title);
        line.append(part);
    }
    return [line, element("p", {class: "ends"}, element("span", {}, dateTime(begin)), element("span", {}, dateTime(now)))];
}

// Newest first.
function section(title, columns, items, toCells) {
    const parts = [element("h2", {}, title)];
    if (items.length === 0) return [...parts, element("p", {}, texts.none)];
    const head = element("tr", {}, ...columns.map(column => element("th", {scope: "col"}, column)));
    const body = items.slice(-mostSpans).reverse().map(item =>
        element("tr", {}, ...toCells(item).map((cell, i) => element("td", {"data-name": columns[i]}, cell))));
    parts.push(element("table", {}, element("thead", {}, head), element("tbody", {}, ...body)));
    if (items.length > mostSpans) parts.push(element("p", {}, fill(texts.older, number(items.length - mostSpans))));
    return parts;
}

function showDetail() {
    if (!history || history.fault !== undefined || !history.kept) {
        const fault = history && history.fault !== undefined ? fill(texts.historyFault, visible(history.fault)) : texts.noHistory;
        detailCell.replaceChildren(element("p", {}, history ? fault : texts.reading));
        return;
    }
    const now = Date.parse(history.time);
    const span = item => {
        const [from, to] = [item.began, item.ended || ""].map(time => element("span", {class: "moment"}, dateTime(time) || texts.still));
        const when = element("span", {}, from, " – ", to);
        return [when, duration((item.ended ? Date.parse(item.ended) : now) - Date.parse(item.began))];
    };
    detailCell.replaceChildren(
        ...(history.conditions.length > 0 ? timeline(history.conditions, now) : []),
        ...section(texts.faults, [texts.when, texts.long, texts.wrong], history.faults, item => [...span(item), visible(item.text)]),
        ...section(texts.collections, [texts.when, texts.device, texts.notes], history.collections,
            item => [dateTime(item.time), visible(item.name), item.notes === null ? "–" : number(item.notes)]),
        ...section(texts.conditionList, [texts.when, texts.long, texts.condition], history.conditions,
            item => [...span(item), element("span", {class: "condition " + item.condition}, texts.conditions[item.condition])]));
}

function ask(url) {
    return fetch(url, {signal: AbortSignal.timeout(patience)}).then(answer => answer.json());
}

// A fault that the worker tells is shown; where it does not answer, the table says so.
function askHistory(query) {
    return ask("history.json" + query).catch(() => ({}));
}

function fetchHistory() {
    const kiosk = open;
    if (kiosk === null) return;
    askHistory("?kiosk=" + encodeURIComponent(kiosk)).then(got => {
        if (kiosk !== open || Object.keys(got).length === 0) return;
        history = got;
        showDetail();
    });
}

function fetchPresent() {
    askHistory(filters.all.checked ? "?all=1" : "").then(got => {
        if (got.fault !== undefined) present.fault = got.fault; // what was known stays
        else if (got.kept !== undefined) present = got;
        if (data) showRows();
        tellState();
        setTimeout(() => { fetchPresent(); fetchHistory(); }, historyPause);
    });
}

function showHistory(kiosk) {
    open = kiosk;
    history = null;
    showDetail();
    showRows();
    fetchHistory();
}

function take(table) {
    if (!Array.isArray(table.kiosks)) throw new Error("no table");
    data = table;
    answered = Date.now();
    isOld = false;
    shownFrom = new Date(data.time);
    show();
}

function poll() {
    if (isAsking) return;
    isAsking = true;
    ask("kiosks.json" + (filters.all.checked ? "?all=1" : "")).then(take).catch(() => { isOld = true; }).then(() => {
        isAsking = false;
        tellState();
    });
}

for (const name of conditions) filters.condition.append(element("option", {value: name}, texts.conditions[name]));
byId("filters").addEventListener("submit", event => event.preventDefault());
byId("filters").addEventListener("input", event => {
    const isAll = filters.all.checked;
    if (filters.condition.value === "fine" && !isAll) {
        if (event.target === filters.all) filters.condition.value = "";
        else filters.all.checked = true;
    }
    if (data) showRows();
    if (event.target === filters.all || filters.all.checked !== isAll) poll();
});
byId("head").addEventListener("click", event => {
    const column = event.target.dataset.column;
    if (!column) return;
    sorting = {column: column, isDown: sorting.column === column && !sorting.isDown};
    tellSorting();
    if (data) showRows();
});

function tellSorting() {
    for (const button of byId("head").querySelectorAll("button")) {
        const isSorted = button.dataset.column === sorting.column;
        if (isSorted) button.parentElement.setAttribute("aria-sort", sorting.isDown ? "descending" : "ascending");
        else button.parentElement.removeAttribute("aria-sort");
    }
}

tellSorting();
poll();
fetchPresent();
setInterval(poll, pause);
setInterval(tellState, 1000); // a clock that stood, as of a computer that slept, is noticed
document.addEventListener("visibilitychange", () => { tellState(); poll(); });
