// The playground: what is pasted goes through the program inside the page, each time through a new instance.
(() =>
{
    const at = (id) => document.getElementById(id);
    const status = at("status");
    const forms = ["hex", "hexdump", "c-array", "escaped", "base64", "log", "jer", "flat", "record", "binary"];
    const options = ["band", "duplex", "extent", "message", "group"];
    const encoder = new TextEncoder();

    // A field: its text or, of a file that is no text, its octets.
    const fields = ["A", "B"].map((letter) => ({
        letter, frame: at(`field${letter}`), text: at(`text${letter}`), form: at(`form${letter}`), file: at(`file${letter}`),
        octets: null, name: ""
    }));
    const titleOf = (field) => field.letter === "A" ? "Message" : "Compared with";

    for (const field of fields)
    {
        field.form.append(new Option("recognised", ""), ...forms.map((form) => new Option(form, form)));
    }

    const say = (text, isBad = false) =>
    {
        status.className = isBad ? "bad" : "";
        status.replaceChildren(text);
    };
    const offer = (text, act) =>
    {
        const button = document.createElement("button");
        button.type = "button";
        button.textContent = text;
        button.addEventListener("click", act);
        status.append(button);
    };

    const program = (async () =>
    {
        const text = at("program").textContent;
        const packed = Uint8Array.from(atob(text), (c) => c.charCodeAt(0));
        const stream = new Blob([packed]).stream().pipeThrough(new DecompressionStream("gzip"));
        return WebAssembly.compile(await new Response(stream).arrayBuffer());
    })();

    // What a system would do. There is none: no call is answered.
    const missing = 52; // ENOSYS of WASI
    const system = new Proxy({}, {get: () => () => missing});

    const decode = (memory, pointer, length) => new TextDecoder().decode(new Uint8Array(memory.buffer, pointer, length));

    // The content for these fields, or a refusal.
    const view = async (given, values) =>
    {
        const instance = await WebAssembly.instantiate(await program, {wasi_snapshot_preview1: system});
        const {memory, allocate, view: run, _initialize: initialize} = instance.exports;
        initialize();
        const put = (octets) =>
        {
            if (octets.length === 0)
            {
                return [0, 0];
            }
            const pointer = allocate(octets.length);
            if (pointer === 0)
            {
                throw new RangeError("no memory is left");
            }
            new Uint8Array(memory.buffer, pointer, octets.length).set(octets);
            return [pointer, octets.length];
        };
        const words = given.flatMap(({octets, name, form}) =>
            [...put(octets), ...put(encoder.encode(name)), ...put(encoder.encode(form))]);
        const [request] = put(new Uint8Array(new Uint32Array([...words, ...values]).buffer));
        const answer = run(request);
        const [refused, text, length, line, column, candidates, all] = new Uint32Array(memory.buffer, answer, 7);
        return {
            refused, line, column, text: decode(memory, text, length),
            candidates: decode(memory, candidates, all).split(" ").filter(Boolean)
        };
    };

    const octetsOf = (field) => field.octets || (field.text.value.trim() ? encoder.encode(field.text.value) : new Uint8Array());

    const bandOf = () =>
    {
        const text = at("band").value.trim();
        const [, digits] = /^n?([0-9]{1,4})$/i.exec(text) || [];
        const band = Number(digits || 0);
        const isGood = text === "" || (band >= 1 && band <= 1024);
        at("band").setAttribute("aria-invalid", isGood ? "false" : "true");
        return isGood ? band : null;
    };

    // The place of a refusal in a text: lines and columns count from 1.
    const indexOf = (text, line, column) =>
    {
        const before = text.split("\n").slice(0, line - 1);
        return Math.min(before.reduce((sum, one) => sum + one.length + 1, 0) + column - 1, text.length);
    };

    const refuse = ({refused, line, column, text, candidates}) =>
    {
        const field = fields[refused - 1];
        const place = line === 0 ? "" : `, line ${line}, column ${column}`;
        say(`${titleOf(field)}${place}: ${text}`, true);
        for (const form of candidates)
        {
            offer(`Read as ${form}`, () =>
            {
                field.form.value = form;
                update();
                field.text.focus();
            });
        }
        if (line !== 0 && !field.octets)
        {
            offer("Show the place", () =>
            {
                const index = indexOf(field.text.value, line, column);
                field.text.focus();
                field.text.setSelectionRange(index, index + 1);
            });
        }
    };

    // In a container of its own, so that nothing of the one before is left. Who types goes on typing.
    const present = (content) =>
    {
        const focused = document.activeElement;
        const [x, y] = [window.scrollX, window.scrollY];
        const container = document.createElement("div");
        container.innerHTML = content;
        at("result").replaceChildren(container);
        show(container);
        if (focused && focused !== document.activeElement)
        {
            focused.focus({preventScroll: true});
        }
        window.scrollTo(x, y);
    };

    let turn = 0;
    const update = async () =>
    {
        const mine = ++turn;
        const given = fields.map((field) => ({octets: octetsOf(field), name: field.name, form: field.form.value}));
        const band = bandOf();
        if (band === null)
        {
            say("Band: a number from 1 to 1024, such as n78.", true);
            return;
        }
        if (given.every(({octets}) => octets.length === 0))
        {
            at("result").replaceChildren();
            say("Paste a message, choose a file or drop one here; or begin with an example.");
            return;
        }
        let answer;
        try
        {
            answer = await view(given, [band, ...options.slice(1).map((id) => Number(at(id).value))]);
        }
        catch (error)
        {
            if (mine === turn)
            {
                at("result").replaceChildren();
                say(`The program inside this page could not show this: ${error.message}. It begins anew with the next ` +
                    "change.", true);
            }
            return;
        }
        if (mine !== turn)
        {
            return;
        }
        if (answer.refused !== 0)
        {
            at("result").replaceChildren();
            refuse(answer);
            return;
        }
        present(answer.text);
        say(`Shown: ${[...at("result").querySelectorAll(".about")].map((one) => one.textContent).join("; compared with ")}`);
    };

    let timer = 0;
    const soon = () =>
    {
        clearTimeout(timer);
        timer = setTimeout(update, 200);
    };

    // A file's octets; a text is shown as one.
    const take = async (field, file) =>
    {
        const most = 64 << 20;
        if (file.size > most)
        {
            say(`${titleOf(field)}: ${file.name} has ${file.size} octets; at most ${most} are read.`, true);
            return;
        }
        const octets = new Uint8Array(await file.arrayBuffer());
        let text = null;
        try
        {
            text = new TextDecoder("utf-8", {fatal: true}).decode(octets);
        }
        catch
        {
            // Not UTF-8: its octets are what is given.
        }
        const isText = text !== null && !/[\u0000-\u0008\u000e-\u001a\u001c-\u001f]/.test(text);
        field.text.value = isText ? text : "";
        field.text.placeholder = isText ? "" : `${file.name}, ${octets.length} octets`;
        field.octets = octets;
        field.name = file.name;
        update();
    };

    const set = (field, text) =>
    {
        field.text.value = text;
        field.text.placeholder = "";
        field.octets = null;
        field.name = "";
        field.form.value = "";
        field.file.value = "";
    };

    for (const field of fields)
    {
        field.text.addEventListener("input", () =>
        {
            field.octets = null;
            field.name = "";
            field.text.placeholder = "";
            soon();
        });
        field.form.addEventListener("change", update);
        field.file.addEventListener("change", () => field.file.files[0] && take(field, field.file.files[0]));
        field.frame.addEventListener("dragover", (event) =>
        {
            event.preventDefault();
            field.frame.classList.add("over");
        });
        field.frame.addEventListener("dragleave", () => field.frame.classList.remove("over"));
        field.frame.addEventListener("drop", (event) =>
        {
            field.frame.classList.remove("over");
            if (event.dataTransfer.files.length !== 0)
            {
                event.preventDefault();
                take(field, event.dataTransfer.files[0]);
            }
        });
    }
    // A file dropped beside the fields does not replace the page.
    for (const name of ["dragover", "drop"])
    {
        window.addEventListener(name, (event) => event.preventDefault());
    }

    options.forEach((id) => at(id).addEventListener("input", soon));
    const examples = JSON.parse(at("examples").textContent);
    at("example").append(...examples.map(([words], i) => new Option(words, i)));
    at("example").addEventListener("change", () =>
    {
        const [, first, second] = examples[at("example").value] || ["", "", ""];
        set(fields[0], first);
        set(fields[1], second);
        update();
    });
    at("clear").addEventListener("click", () =>
    {
        fields.forEach((field) => set(field, ""));
        at("form").reset();
        update();
        fields[0].text.focus();
    });
    at("form").addEventListener("submit", (event) => event.preventDefault());
    update(); // a browser may have kept the fields' texts
})();
