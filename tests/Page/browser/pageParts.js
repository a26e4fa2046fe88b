// What a test reads of a page in the browser: put into each page before its own script.
window.parts = {
    // The items of a message's tree with their paths and, of leaves, their values.
    items(which = 0)
    {
        const tree = document.querySelectorAll(".t")[which];
        const found = [];
        const visit = (item, path) =>
        {
            const row = [...item.children].find((child) => child.matches(".r"));
            const name = row.querySelector(".k").textContent;
            const own = path + (path && !name.startsWith("[") ? "." : "") + name;
            const list = [...item.children].find((child) => child.matches("ul, ol"));
            const entry = {item, row, name, path: own, list};
            found.push(entry);
            const below = list ? [...list.children].map((child) => visit(child, own)) : [];
            if (!list)
            {
                entry.value = JSON.parse(row.querySelector(".v").textContent);
            }
            else if (list.matches("ol"))
            {
                entry.value = below.map((one) => one.value);
            }
            else
            {
                entry.value = Object.fromEntries(below.map((one) => [one.name, one.value]));
            }
            return entry;
        };
        visit(tree.firstElementChild, "");
        return found;
    },
    // The bits that are lit in a message's octets.
    lit(which = 0)
    {
        const bits = [];
        let at = 0;
        for (const row of document.querySelectorAll(".h")[which].querySelectorAll(".row"))
        {
            for (const segment of row.querySelectorAll(".bi .oc > span"))
            {
                const isLit = row.classList.contains("on") || segment.classList.contains("on");
                for (let i = 0; i < segment.textContent.length; ++i, ++at)
                {
                    if (isLit)
                    {
                        bits.push(at);
                    }
                }
            }
        }
        return bits;
    },
    // Where a bit is drawn.
    bit(wanted, which = 0)
    {
        let at = 0;
        for (const segment of document.querySelectorAll(".h")[which].querySelectorAll(".bi .oc > span"))
        {
            if (wanted < at + segment.textContent.length)
            {
                return segment;
            }
            at += segment.textContent.length;
        }
        return null;
    },
    pathOf(row, which = 0)
    {
        const found = row && this.items(which).find((entry) => entry.row === row);
        return found ? found.path : null;
    },
    current(which = 0)
    {
        return this.pathOf(document.querySelectorAll(".t")[which].querySelector(".r.cur"), which);
    },
    pointed(which = 0)
    {
        return this.pathOf(document.querySelectorAll(".t")[which].querySelector(".r.hot"), which);
    },
};
