// Makes elements of the page. A text from the input always becomes a text node here, never markup.

export type Attributes = Readonly<Record<string, string | number | boolean | undefined>>;
export type Child = Node | string;

const kSvg = "http://www.w3.org/2000/svg";

function fill(target: Element, attributes: Attributes, children: readonly Child[]): void {
    for (const [name, value] of Object.entries(attributes)) {
        if (value !== undefined && value !== false) {
            target.setAttribute(name, value === true ? "" : String(value));
        }
    }
    target.append(...children);
}

/** An HTML element. An attribute that is `true` stands without a value; one that is `false` or undefined falls away. */
export function element<Name extends keyof HTMLElementTagNameMap>(
    name: Name, attributes: Attributes = {}, ...children: Child[]
): HTMLElementTagNameMap[Name] {
    const made = document.createElement(name);
    fill(made, attributes, children);
    return made;
}

/** An element of a drawing. */
export function svgElement<Name extends keyof SVGElementTagNameMap>(
    name: Name, attributes: Attributes = {}, ...children: Child[]
): SVGElementTagNameMap[Name] {
    const made = document.createElementNS(kSvg, name);
    fill(made, attributes, children);
    return made;
}

export function button(label: Child, pressed: () => void, attributes: Attributes = {}): HTMLButtonElement {
    const made = element("button", { type: "button", ...attributes }, label);
    made.addEventListener("click", pressed);
    return made;
}

/** A box to tick, with its label; `children` follow the label's text. */
export function checkbox(
    label: Child, changed: (checked: boolean) => void, ...children: Child[]
): { row: HTMLLabelElement; box: HTMLInputElement } {
    const box = element("input", { type: "checkbox" });
    box.addEventListener("change", () => changed(box.checked));
    return { row: element("label", { class: "check" }, box, element("span", {}, label), ...children), box };
}

export function option(value: string | number, label: string): HTMLOptionElement {
    return element("option", { value }, label);
}

/** A select with its name for those who cannot see it. */
export function select(
    name: string, options: readonly HTMLOptionElement[], changed: (value: string) => void
): HTMLSelectElement {
    const made = element("select", { "aria-label": name }, ...options);
    made.addEventListener("change", () => changed(made.value));
    return made;
}

export interface Choice<Value extends string> {
    group: HTMLFieldSetElement;
    show(value: Value): void;
}

/** One of several, as radio buttons that look like one bar. `id` tells the groups of the page apart. */
export function choice<Value extends string>(
    id: string, name: string, options: readonly (readonly [Value, string])[], changed: (value: Value) => void
): Choice<Value> {
    const boxes = new Map<Value, HTMLInputElement>();
    const rows = options.map(([value, label]) => {
        const box = element("input", { type: "radio", name: id, value });
        box.addEventListener("change", () => changed(value));
        boxes.set(value, box);
        return element("label", {}, box, element("span", {}, label));
    });
    const group = element("fieldset", { class: "choice" }, element("legend", {}, name), ...rows);
    return {
        group,
        show: (value) => {
            for (const [own, box] of boxes) {
                box.checked = own === value;
            }
        },
    };
}
