// Buildings for tests: a test tells the few records that it is about, all others are missing.
import { type Building, readBuilding } from "../src/model/Building";
import { ColumnBytes } from "./ColumnBytes";

type Three = [number, number, number];

export interface TestFrame {
    number: number;
    /** Numbers of the nodes. */
    ends: [number, number];
    kind?: number;
    story?: number;
    key?: number;
    line?: number;
    material?: number;
    section?: number;
    angle?: number;
}

export interface TestPlanar {
    number: number;
    /** Numbers of the nodes: three make a plate, four a wall. */
    nodes: number[];
    story?: number;
    key?: number;
    line?: number;
    material?: number;
    thickness?: number;
}

export interface TestSection {
    number: number;
    type?: number;
    shape: string;
    values?: number[];
    further?: number[];
}

export interface TestFinding {
    code?: string;
    object?: number;
    story?: number;
    key?: number;
    element?: number;
}

export interface TestParts {
    /** Keys. */
    stories?: number[];
    nodes?: { number: number; at: Three; story?: number }[];
    frames?: TestFrame[];
    planars?: TestPlanar[];
    materials?: { number: number; type?: number; name?: string }[];
    sections?: TestSection[];
    thicknesses?: [number, number][];
    supports?: number[];
    /** Element and bits. */
    releases?: [number, number][];
    offsets?: { element: number; values: number[] }[];
    nodalLoads?: { standing?: number; node: number; values: number[] }[];
    /** Pairs of place and value. */
    beamLoads?: { standing?: number; element: number; type: number; pairs: [number, number][] }[];
    edgeLoads?: { standing?: number; element: number; edge: number; value: number }[];
    /** Story key or none, case, and what the model has: count, fx, fy, fz. */
    balance?: { story?: number; case: number; model: number[] }[];
    findings?: TestFinding[];
    lost?: { finding: number; corners: Three[] }[];
    lostLoads?: { finding: number; ends: number[]; values: [number, number] }[];
}

function padded(values: number[], size: number): number[] {
    return [...values, ...new Array<number>(size - values.length).fill(0)];
}

function addPlaces(bytes: ColumnBytes, { stories = [], nodes = [], supports = [] }: TestParts): void {
    bytes.integers("story.key", stories);
    bytes.integers("story.number", stories.map((key) => 10 * key));
    bytes.integers("story.line", stories.map((key) => 100 * key));
    bytes.integers("node.number", nodes.map(({ number }) => number));
    ["x", "y", "z"].forEach((axis, k) => bytes.reals(`node.${axis}`, nodes.map(({ at }) => at[k])));
    bytes.integers("node.story", nodes.map(({ story = -1 }) => story));
    bytes.integers("node.line", nodes.map(({ number }) => 7 * number));
    bytes.integers("support.node", supports);
}

function addFrames(bytes: ColumnBytes, { frames = [], releases = [], offsets = [] }: TestParts): void {
    bytes.integers("frame.number", frames.map(({ number }) => number));
    bytes.integers("frame.kind", frames.map(({ kind = 0 }) => kind));
    bytes.integers("frame.story", frames.map(({ story = 0 }) => story));
    bytes.integers("frame.key", frames.map(({ key = 0 }) => key));
    bytes.integers("frame.line", frames.map(({ line = 0 }) => line));
    bytes.integers("frame.material", frames.map(({ material = 1 }) => material));
    bytes.integers("frame.section", frames.map(({ section = 1 }) => section));
    bytes.integers("frame.nodeI", frames.map(({ ends }) => ends[0]));
    bytes.integers("frame.nodeJ", frames.map(({ ends }) => ends[1]));
    bytes.reals("frame.angle", frames.map(({ angle = 0 }) => angle));
    bytes.integers("release.element", releases.map(([element]) => element));
    bytes.integers("release.ends", releases.map(([, ends]) => ends));
    bytes.integers("offset.element", offsets.map(({ element }) => element));
    bytes.reals("offset.values", offsets.flatMap(({ values }) => values));
}

function addPlanars(bytes: ColumnBytes, { planars = [] }: TestParts): void {
    bytes.integers("planar.type", planars.map(({ nodes }) => (nodes.length === 4 ? 0 : 1)));
    bytes.integers("planar.number", planars.map(({ number }) => number));
    bytes.integers("planar.story", planars.map(({ story = 0 }) => story));
    bytes.integers("planar.key", planars.map(({ key = 0 }) => key));
    bytes.integers("planar.line", planars.map(({ line = 0 }) => line));
    bytes.integers("planar.material", planars.map(({ material = 1 }) => material));
    bytes.integers("planar.thickness", planars.map(({ thickness = 1 }) => thickness));
    bytes.integers("planar.nodes", planars.flatMap(({ nodes }) => padded(nodes, 4)));
}

function addProperties(bytes: ColumnBytes, { materials = [], sections = [], thicknesses = [] }: TestParts): void {
    bytes.integers("material.number", materials.map(({ number }) => number));
    bytes.integers("material.type", materials.map(({ type = 0 }) => type));
    bytes.texts("material.name", materials.map(({ name = "C30" }) => name));
    bytes.texts("material.concrete", materials.map(() => "C30"));
    bytes.texts("material.steel", materials.map(() => "16Mn"));
    bytes.integers("section.number", sections.map(({ number }) => number));
    bytes.integers("section.type", sections.map(({ type = 1 }) => type));
    bytes.texts("section.shape", sections.map(({ shape }) => shape));
    bytes.reals("section.values", sections.flatMap(({ values = [] }) => padded(values, 9)));
    bytes.reals("section.composite", sections.flatMap(() => [6.91484, 3.0792, 0.3, 0.2]));
    bytes.reals("section.further", sections.flatMap(({ further = [] }) => padded(further, 8)));
    bytes.integers("thickness.number", thicknesses.map(([number]) => number));
    bytes.reals("thickness.value", thicknesses.map(([, value]) => value));
}

function addLoads(bytes: ColumnBytes, { nodalLoads = [], beamLoads = [], edgeLoads = [] }: TestParts): void {
    bytes.integers("nodalLoad.standing", nodalLoads.map(({ standing = 1 }) => standing));
    bytes.integers("nodalLoad.node", nodalLoads.map(({ node }) => node));
    ["fx", "fy", "fz", "mx", "my", "mz"].forEach((name, k) =>
        bytes.reals(`nodalLoad.${name}`, nodalLoads.map(({ values }) => values[k] ?? 0)));
    bytes.integers("beamLoad.standing", beamLoads.map(({ standing = 1 }) => standing));
    bytes.integers("beamLoad.element", beamLoads.map(({ element }) => element));
    bytes.integers("beamLoad.type", beamLoads.map(({ type }) => type));
    for (let k = 0; k < 4; ++k) {
        bytes.reals(`beamLoad.d${k + 1}`, beamLoads.map(({ pairs }) => pairs[k]?.[0] ?? 0));
        bytes.reals(`beamLoad.p${k + 1}`, beamLoads.map(({ pairs }) => pairs[k]?.[1] ?? 0));
    }
    bytes.integers("edgeLoad.standing", edgeLoads.map(({ standing = 1 }) => standing));
    bytes.integers("edgeLoad.element", edgeLoads.map(({ element }) => element));
    bytes.integers("edgeLoad.edge", edgeLoads.map(({ edge }) => edge));
    bytes.reals("edgeLoad.value", edgeLoads.map(({ value }) => value));
}

function addBalance(bytes: ColumnBytes, { balance = [] }: TestParts): void {
    bytes.integers("balance.story", balance.map(({ story = 0 }) => story));
    bytes.integers("balance.hasStory", balance.map(({ story }) => (story === undefined ? 0 : 1)));
    bytes.integers("balance.case", balance.map((row) => row.case));
    bytes.reals("balance.read", balance.flatMap(({ model }) => model.map((value) => 2 * value)));
    bytes.reals("balance.model", balance.flatMap(({ model }) => model));
    bytes.reals("balance.lost", balance.flatMap(({ model }) => model));
    bytes.integers("balance.notSummed", balance.map(() => 3));
    bytes.integers("balance.holds", balance.map((_, i) => (i === 0 ? 1 : 0)));
}

function addFindings(bytes: ColumnBytes, { findings = [], lost = [], lostLoads = [] }: TestParts): void {
    const codes = [...new Set(findings.map(({ code = "zero-length" }) => code))];
    bytes.texts("findingCode.name", codes);
    bytes.integers("findingCode.total", codes.map(() => 5));
    bytes.integers("finding.code", findings.map(({ code = "zero-length" }) => codes.indexOf(code)));
    bytes.integers("finding.severity", findings.map(() => 1));
    bytes.integers("finding.source", findings.map(() => 0));
    bytes.integers("finding.line", findings.map((_, i) => i + 1));
    bytes.integers("finding.object", findings.map(({ object = 0 }) => object));
    bytes.integers("finding.story", findings.map(({ story = -1 }) => story));
    bytes.integers("finding.key", findings.map(({ key = 0 }) => key));
    bytes.integers("finding.element", findings.map(({ element = 0 }) => element));
    bytes.texts("finding.text", findings.map((_, i) => `finding ${i}`));
    bytes.integers("lost.finding", lost.map(({ finding }) => finding));
    bytes.integers("lost.points", lost.map(({ corners }) => corners.length));
    ["x", "y", "z"].forEach((axis, k) =>
        bytes.reals(`lost.${axis}`, lost.flatMap(({ corners }) => corners.map((corner) => corner[k]))));
    bytes.integers("lostLoad.finding", lostLoads.map(({ finding }) => finding));
    bytes.reals("lostLoad.ends", lostLoads.flatMap(({ ends }) => ends));
    bytes.reals("lostLoad.values", lostLoads.flatMap(({ values }) => values));
}

/** All columns of a picture. */
export function testColumns(parts: TestParts): ColumnBytes {
    const bytes = new ColumnBytes();
    bytes.texts("program.version", ["1.2.3"]).texts("file.names", ["a/structure.sat", "a/load.sat"]);
    bytes.texts("plan.svg", []);
    addPlaces(bytes, parts);
    addFrames(bytes, parts);
    addPlanars(bytes, parts);
    addProperties(bytes, parts);
    addLoads(bytes, parts);
    addBalance(bytes, parts);
    addFindings(bytes, parts);
    return bytes;
}

export function testBuilding(parts: TestParts): Building {
    return readBuilding(testColumns(parts).columns());
}
