"use strict";

// Makes a container with the content of a page alive.
function show(container)
{
    const grid = container.querySelector(".g");
    if (!grid)
    {
        return;
    }
    const data = JSON.parse(container.querySelector("script[type='application/json']").textContent);
    const make = (tag, className, text) =>
    {
        const made = document.createElement(tag);
        if (className)
        {
            made.className = className;
        }
        if (text !== undefined)
        {
            made.textContent = text;
        }
        return made;
    };
    const sections = [...grid.querySelectorAll(".m")];
    const isTwo = sections.length === 2;
    container.classList.add("on-page");
    grid.classList.toggle("two", isTwo);
    const perRow = isTwo || window.innerWidth < 1400 ? 4 : 8;
    const most = 12; // colours

    // The foot: what is pointed at.
    const foot = make("div", "foot");
    const told = make("output");
    told.setAttribute("aria-live", "polite");
    const copyButton = make("button", "", "Copy path");
    copyButton.type = "button";
    foot.append(copyButton, told);
    const spoken = make("output", "hid"); // what a key has done
    spoken.setAttribute("aria-live", "assertive");
    const say = (text) => { spoken.textContent = text; };

    const plural = (count, thing) => `${count} ${thing}${count === 1 ? "" : "s"}`;
    const range = (first, count) => count === 0 ? "no bits" : count === 1 ? `bit ${first}`
                                                                          : `bits ${first}..${first + count - 1}`;

    // Lists for which the page had no room, of the items that they are made of (content.cpp, TreeWriter::defer).
    const unfold = (numbers, heads) =>
    {
        let next = 0;
        const item = () =>
        {
            const number = numbers[next++];
            if (number >= 0)
            {
                return "<li>" + heads[number];
            }
            const tag = numbers[next++] === 1 ? "ol" : "ul";
            let text = `<li>${heads[-1 - number]}<${tag}>`;
            for (let count = numbers[next++]; count > 0; --count)
            {
                text += item();
            }
            return `${text}</${tag}>`;
        };
        let all = "";
        while (next < numbers.length)
        {
            all += item();
        }
        return all;
    };
    sections.forEach((section, which) => section.querySelectorAll("[data-rest]").forEach((list) =>
    {
        const {heads, rest} = data.messages[which];
        list.innerHTML = unfold(rest[Number(list.dataset.rest)], heads);
        list.removeAttribute("data-rest");
    }));

    // A message: its nodes in the order of the list items, its octets.
    const views = sections.map((section, which) =>
    {
        const message = data.messages[which];
        const items = [...section.querySelectorAll(".t li")];
        const size = message.octets.length / 2;
        const nodes = [];
        const numbers = new Map();
        let next = 0; // bit
        for (const item of items)
        {
            const number = nodes.length;
            numbers.set(item, number);
            const text = item.firstChild;
            const [, name, literal] = /^(\S*) ?([^]*)$/.exec(text.data.trim());
            let list = null;
            let meaning = null;
            const notes = []; // findings
            for (let child = item.firstElementChild; child; child = child.nextElementSibling)
            {
                switch (child.tagName)
                {
                case "I":
                    meaning = child;
                    break;
                case "P":
                    notes.push(child);
                    break;
                default:
                    list = child;
                }
            }
            const up = item.parentNode.parentNode;
            const node = {item, name, literal, list, meaning, notes, parent: numbers.has(up) ? numbers.get(up) : -1, first: 0, count: -1,
                          end: number + 1, level: 1, below: 0, at: 0};
            const bits = message.bits[number];
            if (bits !== null)
            {
                const [distance, count] = typeof bits === "number" ? [0, bits] : bits;
                node.first = next + distance;
                node.count = count;
                next = node.first + (list ? 0 : count);
            }
            if (node.parent >= 0)
            {
                node.level = nodes[node.parent].level + 1;
                node.at = ++nodes[node.parent].below;
            }
            nodes.push(node);
            const row = make("span", "r");
            row.append(make("span", "k", name));
            if (literal)
            {
                row.append(" ", make("span", node.count === 0 ? "v z" : "v", literal));
            }
            if (node.count > 0)
            {
                row.dataset.b = range(node.first, node.count);
            }
            if (meaning)
            {
                row.append(meaning);
            }
            text.replaceWith(row);
            node.row = row;
            if (list)
            {
                const twisty = make("span", "x");
                twisty.setAttribute("aria-hidden", "true");
                item.prepend(twisty);
            }
        }
        for (let i = nodes.length - 1; i > 0; --i)
        {
            const parent = nodes[nodes[i].parent];
            parent.end = Math.max(parent.end, nodes[i].end);
        }
        return {section, which, message, nodes, numbers, size, items};
    });

    const path = (view, number) =>
    {
        let text = "";
        for (let i = number; i >= 0; i = view.nodes[i].parent)
        {
            const name = view.nodes[i].name;
            text = (i === 0 || name.startsWith("[") ? "" : ".") + name + text;
        }
        return text;
    };

    const label = (node) =>
        [node.literal ? `${node.name} ${node.literal}` : node.name,
         ...node.notes.map((note) => `${note.firstChild.textContent} ${note.dataset.id}`),
         node.meaning ? node.meaning.textContent : "", node.count >= 0 ? range(node.first, node.count) : ""]
            .filter(Boolean)
            .join(", ");

    // The subtrees that have a colour, in both messages the same one: a large subtree is left to those below it.
    const hues = new Map();
    const hueOf = (name) =>
    {
        if (!hues.has(name))
        {
            hues.set(name, Math.round(hues.size * 137.5) % 360);
        }
        return hues.get(name);
    };
    const colour = (view) =>
    {
        const {nodes} = view;
        const below = (number) =>
        {
            const found = [];
            for (let i = number + 1; i < nodes[number].end; i = nodes[i].end)
            {
                found.push(i);
            }
            return found;
        };
        let heads = below(0);
        for (;;)
        {
            const large = heads.find((i) => nodes[i].count > nodes[0].count * 0.3 && nodes[i].below > 0 &&
                                            heads.length + nodes[i].below - 1 <= most);
            if (large === undefined)
            {
                break;
            }
            heads = heads.flatMap((i) => i === large ? below(i) : [i]);
        }
        heads.forEach((head) =>
        {
            const hue = hueOf(path(view, head));
            nodes[head].item.classList.add("head");
            nodes[head].item.style.setProperty("--hue", hue);
            for (let k = head; k < nodes[head].end; ++k)
            {
                nodes[k].hue = hue;
            }
        });
    };

    // The octets in hex and bits.
    const octets = (view) =>
    {
        const {nodes, message, size} = view;
        const owner = new Int32Array(size * 8).fill(-1);
        const begins = new Uint8Array(size * 8 + 1);
        nodes.forEach((node, number) =>
        {
            if (node.count > 0)
            {
                owner.fill(number, node.first, node.first + node.count);
                begins[node.first] = begins[node.first + node.count] = 1;
            }
        });
        message.stretches.forEach(([first, count], i) =>
        {
            owner.fill(-2 - i, first, first + count);
            begins[first] = begins[first + count] = 1;
        });
        const pane = make("section", "h");
        pane.tabIndex = 0;
        pane.setAttribute("aria-label", `Octets of ${view.section.querySelector("h2").textContent}`);
        if (isTwo)
        {
            pane.append(make("b", "ab", "AB"[view.which]));
        }
        const table = make("div");
        const cells = [];
        const rows = [];
        const paint = (cell, bit) =>
        {
            cell.bit = bit;
            const of = owner[bit];
            if (of >= 0 && nodes[of].hue !== undefined)
            {
                cell.style.setProperty("--hue", nodes[of].hue);
            }
            else if (of < -1)
            {
                cell.className = "un";
            }
        };
        const segments = [];
        for (let at = 0; at < size; at += perRow)
        {
            const row = make("div", "row");
            const hex = make("span", "hx");
            const bits = make("span", "bi");
            row.append(make("span", "off", at.toString(16).padStart(4, "0")), hex, bits);
            for (let i = at; i < at + perRow; ++i)
            {
                if (i >= size)
                {
                    hex.append(make("span", "", "  "));
                    continue;
                }
                const digits = message.octets.substr(2 * i, 2);
                const cell = make("span", "", digits);
                paint(cell, 8 * i);
                cells.push(cell);
                hex.append(cell);
                const octet = make("span", "oc");
                const text = parseInt(digits, 16).toString(2).padStart(8, "0");
                for (let from = 0; from < 8;)
                {
                    let to = from + 1;
                    while (to < 8 && !begins[8 * i + to])
                    {
                        ++to;
                    }
                    const segment = make("span", "", text.slice(from, to));
                    paint(segment, 8 * i + from);
                    segment.to = 8 * i + to;
                    segments.push(segment);
                    octet.append(segment);
                    from = to;
                }
                bits.append(octet);
            }
            rows.push(row);
            table.append(row);
        }
        pane.append(table);
        Object.assign(view, {pane, owner, cells, rows, segments});
    };

    // Lights bits; returns what puts them out.
    const light = (view, first, count) =>
    {
        if (count <= 0)
        {
            return () => {};
        }
        const lit = [];
        const end = first + count;
        const perLine = 8 * perRow;
        const on = (element) =>
        {
            element.classList.add("on");
            lit.push(element);
        };
        const isWhole = (row) => row * perLine >= first && (row + 1) * perLine <= end;
        for (let octet = first >> 3; octet <= (end - 1) >> 3; ++octet)
        {
            const row = Math.floor(octet / perRow);
            if (isWhole(row))
            {
                on(view.rows[row]);
                octet = (row + 1) * perRow - 1;
            }
            else
            {
                on(view.cells[octet]);
            }
        }
        let low = 0;
        for (let high = view.segments.length; low < high;)
        {
            const middle = (low + high) >> 1;
            if (view.segments[middle].to <= first)
            {
                low = middle + 1;
            }
            else
            {
                high = middle;
            }
        }
        for (; low < view.segments.length && view.segments[low].bit < end; ++low)
        {
            if (!isWhole(Math.floor(view.segments[low].bit / perLine)))
            {
                on(view.segments[low]);
            }
        }
        return () => lit.forEach((element) => element.classList.remove("on"));
    };

    const within = (element, pane) =>
    {
        const a = element.getBoundingClientRect();
        const b = pane.getBoundingClientRect();
        return a.top >= b.top && a.bottom <= Math.min(b.bottom, window.innerHeight);
    };
    const bring = (element, pane) =>
    {
        if (!within(element, pane))
        {
            element.scrollIntoView({block: "center", inline: "nearest"});
        }
    };
    const rowOf = (view, bit) => view.rows[Math.floor(bit / 8 / perRow)];

    views.forEach((view) =>
    {
        colour(view);
        octets(view);
        grid.append(view.pane);
        view.section.querySelector(".t").setAttribute("role", "tree");
        view.section.querySelector(".t").setAttribute("aria-label",
                                                      `Elements of ${view.section.querySelector("h2").textContent}`);
        view.nodes.forEach((node, number) =>
        {
            node.item.setAttribute("role", "treeitem");
            node.item.setAttribute("aria-label", label(node));
            node.item.setAttribute("aria-level", node.level);
            node.item.tabIndex = number === 0 ? 0 : -1;
            if (node.list)
            {
                node.list.setAttribute("role", "group");
                node.item.setAttribute("aria-expanded", "true");
            }
        });
        view.stop = 0; // the node that has the tree's tab stop
        view.current = -1;
        view.dark = () => {}; // puts out what is lit
        view.hot = null; // the row that is marked, or was
    });

    // Pictures: what is drawn of an element has its path.
    const drawings = [...container.querySelectorAll(".p")];
    views.forEach((view, which) =>
    {
        view.drawn = drawings[which] ? [...drawings[which].querySelectorAll("[data-path]")] : [];
        view.shown = []; // of it what is highlighted
    });
    const showDrawn = (view, number) =>
    {
        view.shown.forEach((shape) => shape.classList.remove("on"));
        view.shown = [];
        if (number < 0 || view.drawn.length === 0)
        {
            return;
        }
        const wanted = path(view, number);
        const isWithin = (inner, outer) => inner.startsWith(outer) && /^($|[.[])/.test(inner.slice(outer.length));
        let shapes = view.drawn.filter((shape) => isWithin(shape.dataset.path, wanted));
        if (shapes.length === 0)
        {
            // What the element is a part of, the innermost such thing.
            const around = view.drawn.filter((shape) => isWithin(wanted, shape.dataset.path));
            const longest = Math.max(0, ...around.map((shape) => shape.dataset.path.length));
            shapes = around.filter((shape) => shape.dataset.path.length === longest);
        }
        shapes.forEach((shape) => shape.classList.add("on"));
        view.shown = shapes;
    };

    const describe = (view, number) =>
    {
        const node = view.nodes[number];
        const place = node.count > 0 ? `, from octet ${node.first >> 3} bit ${node.first & 7}, ` +
                                           plural(node.count, "bit")
                                     : "";
        return (isTwo ? `${"AB"[view.which]}: ` : "") + path(view, number) +
            (node.literal ? ` = ${node.literal}` : "") +
            (node.count >= 0 ? ` (${range(node.first, node.count)}${place})` : "");
    };

    const point = (view, number) =>
    {
        views.forEach((one) =>
        {
            one.dark();
            one.dark = () => {};
        });
        if (view.hot)
        {
            view.hot.classList.remove("hot");
        }
        showDrawn(view, number);
        if (number < 0)
        {
            return;
        }
        const node = view.nodes[number];
        view.hot = node.row;
        node.row.classList.add("hot");
        view.dark = light(view, node.first, node.count);
        told.textContent = describe(view, number);
    };

    const setOpen = (node, isOpen) =>
    {
        if (node.list)
        {
            node.item.classList.toggle("shut", !isOpen);
            node.item.setAttribute("aria-expanded", isOpen ? "true" : "false");
        }
    };

    const reveal = (view, number) =>
    {
        for (let i = view.nodes[number].parent; i >= 0; i = view.nodes[i].parent)
        {
            setOpen(view.nodes[i], true);
        }
    };

    // Makes a node the current one.
    let active = views[0];
    const select = (view, number, isFocused = true) =>
    {
        reveal(view, number);
        if (view.current >= 0)
        {
            view.nodes[view.current].row.classList.remove("cur");
        }
        view.nodes[view.stop].item.tabIndex = -1;
        view.stop = view.current = number;
        active = view;
        const node = view.nodes[number];
        node.item.tabIndex = 0;
        node.row.classList.add("cur");
        bring(node.row, view.section);
        if (isFocused)
        {
            node.item.focus({preventScroll: true});
        }
        point(view, number);
        if (node.count > 0)
        {
            bring(rowOf(view, node.first), view.pane);
        }
    };
    const back = (view) => point(view, view.current);

    views.forEach((view) =>
    {
        const numberAt = (target) => view.numbers.get(target.closest(".t li"));
        const tree = view.section.querySelector(".t");
        tree.addEventListener("mouseover", (event) =>
        {
            const row = event.target.closest(".r");
            if (row)
            {
                const number = numberAt(row);
                point(view, number);
                if (view.nodes[number].count > 0)
                {
                    const line = rowOf(view, view.nodes[number].first);
                    if (!within(line, view.pane))
                    {
                        view.pane.scrollTop += line.getBoundingClientRect().top - view.pane.getBoundingClientRect().top -
                            view.pane.clientHeight / 3;
                    }
                }
            }
        });
        tree.addEventListener("mouseleave", () => back(view));
        tree.addEventListener("click", (event) =>
        {
            const number = numberAt(event.target);
            if (event.target.className === "x")
            {
                const node = view.nodes[number];
                setOpen(node, node.item.classList.contains("shut"));
            }
            else if (event.target.closest(".r"))
            {
                select(view, number);
            }
        });
        tree.addEventListener("keydown", (event) => treeKey(view, event));
        // Who reads the page aloud gives items the focus by itself.
        tree.addEventListener("focusin", (event) =>
        {
            const number = numberAt(event.target);
            if (number !== view.stop)
            {
                select(view, number, false);
            }
        });
        const bitAt = (event) => event.target.bit;
        view.pane.addEventListener("mouseover", (event) =>
        {
            const bit = bitAt(event);
            if (bit === undefined)
            {
                return;
            }
            const of = view.owner[bit];
            if (of >= 0)
            {
                point(view, of);
                const row = view.nodes[of].row;
                if (row.offsetParent && !within(row, view.section))
                {
                    view.section.scrollTop += row.getBoundingClientRect().top -
                        view.section.getBoundingClientRect().top - view.section.clientHeight / 3;
                }
            }
            else
            {
                point(view, -1);
                const [first, count, words] = view.message.stretches[-2 - of] || [bit, 1, "no element's"];
                view.dark = light(view, first, count);
                told.textContent = `${range(first, count)}: ${words}`;
            }
        });
        view.pane.addEventListener("mouseleave", () => back(view));
        view.pane.addEventListener("click", (event) =>
        {
            const bit = bitAt(event);
            if (bit !== undefined && view.owner[bit] >= 0)
            {
                select(view, view.owner[bit]);
            }
        });
    });

    // The node at a path, or the last one on the way.
    const nodeAt = (view, wanted) =>
    {
        let at = 0;
        for (const step of wanted.match(/\[\d+\]|[^.[\]]+/g).slice(1))
        {
            let below = at + 1;
            while (below < view.nodes[at].end && view.nodes[below].name !== step)
            {
                below = view.nodes[below].end;
            }
            if (below >= view.nodes[at].end)
            {
                break;
            }
            at = below;
        }
        return at;
    };

    // Zooms to one slot: the time axis is stretched, texts are not, and those on the left stay in sight.
    const zoomTo = (picture, grid0, slot) =>
    {
        const whole = picture.whole;
        picture.classList.toggle("near", slot >= 0);
        if (slot < 0)
        {
            picture.setAttribute("viewBox", whole.join(" "));
            picture.removeAttribute("preserveAspectRatio");
            picture.texts.forEach(({text, transform}) =>
            {
                transform ? text.setAttribute("transform", transform) : text.removeAttribute("transform");
                text.style.textAnchor = text.style.display = "";
            });
            return;
        }
        const left = Number(grid0.dataset.x);
        const width = Number(grid0.dataset.slotWidth);
        const x = left + (slot - 0.15) * width;
        const seenWidth = 1.2 * width;
        const squeezed = `scale(${seenWidth / whole[2]} 1)`;
        picture.setAttribute("viewBox", [x, whole[1], seenWidth, whole[3]].join(" "));
        picture.setAttribute("preserveAspectRatio", "none");
        const labels = new Map(); // of each line the last one is left
        picture.texts.forEach(({text, transform}) =>
        {
            const at = Number(text.getAttribute("x"));
            const isLabel = at < left;
            if (isLabel)
            {
                const line = text.getAttribute("y");
                if (labels.has(line))
                {
                    labels.get(line).style.display = "none";
                }
                labels.set(line, text);
            }
            text.style.display = transform ? "none" : "";
            text.style.textAnchor = isLabel ? "start" : "";
            text.setAttribute("transform", `translate(${isLabel ? x : at} 0) ${squeezed} translate(${-at} 0)`);
        });
    };
    views.forEach((view) =>
    {
        const section = drawings[view.which];
        const picture = section ? section.querySelector("svg") : null;
        if (!picture)
        {
            return;
        }
        picture.addEventListener("mouseover", (event) =>
        {
            const shape = event.target.closest("[data-path]");
            if (shape)
            {
                const title = shape.querySelector("title");
                point(view, nodeAt(view, shape.dataset.path));
                told.textContent += title ? `: ${title.textContent}` : "";
            }
        });
        picture.addEventListener("mouseleave", () => back(view));
        picture.addEventListener("click", (event) =>
        {
            const shape = event.target.closest("[data-path]");
            if (shape)
            {
                select(view, nodeAt(view, shape.dataset.path));
            }
        });
        const grids = [...picture.querySelectorAll("g.grid")];
        if (grids.length === 0)
        {
            return;
        }
        picture.texts = [...picture.querySelectorAll("text")].map(
            (text) => ({text, transform: text.getAttribute("transform")}));
        picture.whole = picture.getAttribute("viewBox").split(" ").map(Number);
        const tools = make("div", "zoom");
        tools.setAttribute("role", "toolbar");
        tools.setAttribute("aria-label", "Zoom of the picture");
        const choice = make("select");
        choice.setAttribute("aria-label", "Cell and spacing");
        grids.forEach((one) =>
        {
            const option = make("option", "", `Cell ${one.dataset.cell}, ${one.dataset.spacing} kHz`);
            choice.append(option);
        });
        const slot = make("input");
        slot.type = "number";
        slot.setAttribute("aria-label", "Slot");
        const out = make("output");
        out.setAttribute("aria-live", "polite");
        const grid0 = () => grids[choice.selectedIndex];
        const limit = () =>
        {
            slot.min = grid0().dataset.firstSlot;
            slot.max = Number(slot.min) + Number(grid0().dataset.slots) - 1;
            slot.value = Math.min(Math.max(Number(slot.value), Number(slot.min)), Number(slot.max));
        };
        const zoom = (by) =>
        {
            slot.value = Number(slot.value) + by;
            limit();
            zoomTo(picture, grid0(), Number(slot.value) - Number(slot.min));
            out.textContent = `slot ${slot.value} of ${slot.min}..${slot.max}`;
        };
        const act = (text, run) =>
        {
            const made = make("button", "", text);
            made.type = "button";
            made.addEventListener("click", run);
            return made;
        };
        tools.append(...(grids.length > 1 ? [choice] : []), make("span", "", "Slot "), slot, act("Zoom to slot", () => zoom(0)),
                     act("Previous slot", () => zoom(-1)), act("Next slot", () => zoom(1)), act("Whole picture", () =>
                     {
                         zoomTo(picture, grid0(), -1);
                         out.textContent = "";
                     }), out);
        limit();
        choice.addEventListener("change", limit);
        slot.addEventListener("change", () => zoom(0));
        section.querySelector(".pic").before(tools);
    });

    // The keys of a tree (WAI-ARIA Authoring Practices, tree view).
    const isSeen = (view, number) => view.nodes[number].row.getClientRects().length !== 0;
    const seen = (view, number, step) =>
    {
        for (let i = number + step; i >= 0 && i < view.nodes.length; i += step)
        {
            if (isSeen(view, i))
            {
                return i;
            }
        }
        return number;
    };
    const treeKey = (view, event) =>
    {
        if (event.ctrlKey || event.altKey || event.metaKey)
        {
            return;
        }
        const number = view.stop;
        const node = view.nodes[number];
        const isShut = node.item.classList.contains("shut");
        let to = number;
        switch (event.key)
        {
        case "ArrowDown":
            to = seen(view, number, 1);
            break;
        case "ArrowUp":
            to = seen(view, number, -1);
            break;
        case "ArrowRight":
            if (node.list && isShut)
            {
                setOpen(node, true);
            }
            else if (node.end > number + 1)
            {
                to = seen(view, number, 1);
            }
            break;
        case "ArrowLeft":
            if (node.list && !isShut)
            {
                setOpen(node, false);
            }
            else if (node.parent >= 0)
            {
                to = node.parent;
            }
            break;
        case "Home":
            to = 0;
            break;
        case "End":
            to = seen(view, view.nodes.length, -1);
            break;
        case "Enter":
            setOpen(node, isShut);
            break;
        default:
            return;
        }
        event.preventDefault();
        select(view, to);
    };

    // The bar.
    const bar = make("div", "bar");
    bar.setAttribute("role", "toolbar");
    bar.setAttribute("aria-label", "Tools");
    const group = () =>
    {
        const made = make("span", "grp");
        bar.append(made);
        return made;
    };
    const button = (to, text, key, act) =>
    {
        const made = make("button", "", text);
        made.type = "button";
        if (key)
        {
            made.append(" ", make("kbd", "", key));
            made.setAttribute("aria-keyshortcuts", key);
        }
        made.addEventListener("click", act);
        to.append(made);
        return made;
    };

    // Search.
    const searching = group();
    const search = make("input");
    search.type = "search";
    search.placeholder = "Search name or value ( / )";
    search.setAttribute("aria-label", "Search names and values");
    search.setAttribute("aria-keyshortcuts", "/");
    const found = make("output");
    found.setAttribute("aria-live", "polite");
    searching.append(search, found);
    let hits = [];
    let hit = -1;
    const look = () =>
    {
        hits.forEach(([view, number]) => view.nodes[number].row.classList.remove("hit"));
        const wanted = search.value.trim().toLowerCase();
        hits = [];
        hit = -1;
        if (wanted)
        {
            views.forEach((view) => view.nodes.forEach((node, number) =>
            {
                if (node.row.textContent.toLowerCase().includes(wanted))
                {
                    hits.push([view, number]);
                    node.row.classList.add("hit");
                }
            }));
        }
        found.textContent = wanted ? plural(hits.length, "hit") : "";
    };
    const goHit = (step) =>
    {
        if (hits.length === 0)
        {
            return;
        }
        hit = (hit + step + hits.length + (hit < 0 && step < 0 ? 1 : 0)) % hits.length;
        select(...hits[hit], false);
        found.textContent = `${hit + 1} of ${hits.length}`;
        say(describe(...hits[hit]));
    };
    search.addEventListener("input", look);
    search.addEventListener("keydown", (event) =>
    {
        if (event.key === "Enter")
        {
            goHit(event.shiftKey ? -1 : 1);
            event.preventDefault();
        }
        else if (event.key === "Escape")
        {
            search.value = "";
            look();
            active.nodes[active.stop].item.focus();
        }
    });

    // Steps through places: findings, differences.
    const stepper = (thing, all, keys, go) =>
    {
        if (all.length === 0)
        {
            return {next: () => say(`no ${thing}`), previous: () => say(`no ${thing}`)};
        }
        const place = group();
        let at = -1;
        const out = make("output", "", plural(all.length, thing));
        const step = (by) =>
        {
            at = (at + by + all.length + (at < 0 && by < 0 ? 1 : 0)) % all.length;
            out.textContent = `${at + 1} of ${all.length}`;
            say(`${thing} ${at + 1} of ${all.length}: ${go(all[at], at)}`);
        };
        const made = {next: () => step(1), previous: () => step(-1)};
        button(place, `Previous ${thing}`, keys[1], made.previous);
        button(place, `Next ${thing}`, keys[0], made.next);
        place.append(out);
        return made;
    };
    const findings = views.flatMap((view) => [...view.section.querySelectorAll(".t p")].map(
        (text) => [view, view.numbers.get(text.parentNode), text]));
    const findingSteps = stepper("finding", findings, ["f", "F"], ([view, number, text]) =>
    {
        select(view, number);
        bring(text, view.section);
        return text.textContent;
    });
    const words = [...container.querySelectorAll("details.d li")];
    const differences = data.differences || [];
    differences.forEach((difference) => views.forEach((view, which) =>
    {
        const number = difference[which];
        if (difference[2] & (1 << which))
        {
            view.nodes[number].item.classList.add("dif", "dd");
            for (let i = number; i < view.nodes[number].end; ++i)
            {
                view.nodes[i].item.classList.add("dd");
            }
        }
        for (let i = number; i >= 0; i = view.nodes[i].parent)
        {
            view.nodes[i].item.classList.add("dd");
        }
    }));
    const differenceSteps = stepper("difference", differences, ["n", "p"], (difference, at) =>
    {
        const isThere = (which) => (difference[2] & (1 << which)) !== 0;
        views.forEach((view, which) => select(view, difference[which], which === 0));
        views.forEach((view) => view.dark());
        views.forEach((view, which) =>
        {
            const node = view.nodes[difference[which]];
            view.hot.classList.toggle("hot", isThere(which));
            view.dark = isThere(which) ? light(view, node.first, node.count) : () => {};
        });
        told.textContent = words[at] ? words[at].textContent : describe(views[1], difference[1]);
        return words[at] ? words[at].textContent : path(views[0], difference[0]);
    });
    if (differences.length !== 0)
    {
        const box = make("input");
        box.type = "checkbox";
        const labelled = make("label", "", " Only differences");
        labelled.prepend(box);
        group().append(labelled);
        box.addEventListener("change", () =>
        {
            views.forEach((view) => view.section.classList.toggle("only", box.checked));
            say(box.checked ? "only differences are shown" : "all elements are shown");
        });
    }
    const folding = group();
    const fold = (isOpen) => views.forEach((view) => view.nodes.forEach((node, number) =>
        setOpen(node, isOpen || number === 0)));
    button(folding, "Expand all", "", () => fold(true));
    button(folding, "Collapse all", "", () => fold(false));

    const copy = async () =>
    {
        const text = path(active, active.stop);
        let isDone = false;
        try
        {
            await navigator.clipboard.writeText(text);
            isDone = true;
        }
        catch
        {
            const field = make("textarea", "hid", text);
            container.append(field);
            field.select();
            isDone = document.execCommand("copy");
            field.remove();
        }
        told.textContent = isDone ? `copied: ${text}` : `not copied, the browser refuses: ${text}`;
    };
    copyButton.append(" ", make("kbd", "", "c"));
    copyButton.setAttribute("aria-keyshortcuts", "c");
    copyButton.addEventListener("click", copy);

    // A container may get another content: its keys are then that one's.
    if (container.keys)
    {
        container.keys.abort();
    }
    container.keys = new AbortController();
    container.addEventListener("keydown", (event) =>
    {
        const isTyped = event.target.matches("input[type=search], textarea");
        if (isTyped || event.ctrlKey || event.altKey || event.metaKey)
        {
            return;
        }
        const acts = {
            "/": () => search.focus(), c: copy, f: findingSteps.next, F: findingSteps.previous, n: differenceSteps.next,
            p: differenceSteps.previous
        };
        if (acts[event.key])
        {
            event.preventDefault();
            acts[event.key]();
        }
    }, {signal: container.keys.signal});

    container.querySelectorAll("details.d").forEach((list) => { list.open = false; });
    grid.before(bar);
    container.append(foot, spoken);
    point(views[0], -1);
    if (document.activeElement === document.body)
    {
        views[0].nodes[0].item.focus({preventScroll: true});
    }
}
