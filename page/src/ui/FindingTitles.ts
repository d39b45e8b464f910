// A title for each code of a finding, in English and Chinese.

import { language } from "./Strings";

const kTitles: Readonly<Record<string, readonly [string, string]>> = {
    "byte-order-mark": ["Byte order mark at the start", "文件开头有字节顺序标记"],
    "utf-16": ["File is UTF-16 text", "文件为 UTF-16 编码"],
    "no-line-end": ["Last line without line end", "末行缺少换行符"],
    "end-mark": ["End mark before the end of the file", "文件中途出现结束标记"],
    "nul-byte": ["NUL byte in a line", "行中含 NUL 字节"],
    "long-line": ["Line too long", "行过长"],
    "rest-not-read": ["Lines at the end not read", "文件尾部的数据行未读取"],
    "same-file": ["One file given twice", "两个输入是同一文件"],
    "files-swapped": ["Files look swapped", "两个文件可能颠倒"],
    "ends-early": ["Load file ends early", "荷载文件提前结束"],
    "not-a-number": ["Not a number", "不是数字"],
    "fused-numbers": ["Numbers run together", "数字连在一起"],
    "number-out-of-range": ["Number out of range", "数值超出范围"],
    "story-key": ["Story without a load block", "楼层序号无对应荷载块"],
    "node-number-twice": ["Node number used twice", "节点编号重复"],
    "node-missing": ["Element with a missing node", "构件的节点不存在"],
    "node-unused": ["Nodes that no element uses", "未被使用的节点"],
    "section-number-twice": ["Section number used twice", "截面编号重复"],
    "section-missing": ["Section not defined", "截面未定义"],
    "section-kind": ["Kind of section not converted", "截面类型未转换"],
    "grade-unknown": ["Unknown grade of material", "材料强度等级未知"],
    "thickness-zero": ["Thickness of 0 or less", "厚度小于或等于 0"],
    "zero-length": ["Element or edge without length", "构件或边的长度为零"],
    "same-nodes": ["Two elements on the same nodes", "两构件节点相同"],
    "nodes-coincide": ["Two nodes at one place", "节点位置重合"],
    "node-on-member": ["Node on a beam that is not joined to it", "节点位于梁上但未与之连接"],
    "beams-cross": ["Beams cross without a node", "梁相交处无节点"],
    "members-overlap": ["Elements overlap", "构件重叠"],
    "not-supported": ["No path to a support", "无通向支座的传力路径"],
    "look-incomplete": ["Not every pair was compared", "未比较所有构件对"],
    "wall-corner-missing": ["Wall left out: corner node missing", "墙被略去：角节点不存在"],
    "wall-not-upright": ["Wall left out: not upright", "墙被略去：不竖直"],
    "wall-opening": ["Wall without its opening", "墙洞口未转换"],
    "plate-corner-missing": ["Slab with missing triangles: corner node missing", "楼板缺少三角形：角节点不存在"],
    "plate-too-few-corners": ["Slab left out: fewer than three corners", "楼板被略去：角点少于三个"],
    "flat-triangle": ["Triangle without area left out", "无面积的三角形被略去"],
    "load-type": ["Load left out: type not converted", "荷载被略去：类型不支持转换"],
    "load-story-missing": ["Load left out: no such story", "荷载被略去：楼层不存在"],
    "load-beam-missing": ["Load left out: no such beam", "荷载被略去：梁不存在"],
    "load-wall-missing": ["Load left out: no such wall", "荷载被略去：墙不存在"],
    "load-node-missing": ["Node of a load missing", "荷载的节点缺失"],
    "load-on-lost-wall": ["Line load on a wall that was left out", "线荷载所在的墙已被略去"],
    "load-cut": ["Load cut at the end of its beam", "荷载在梁端被截断"],
    "load-moved": ["Force moved to the end of its beam", "集中力被移至梁端"],
    "load-beyond-end": ["Force beyond the end of its wall", "集中力超出墙端"],
    "load-before-start": ["Load begins before end i, or ends before its start", "荷载位置为负，或终点先于起点"],
    "trapezoid-as-triangle": ["Trapezoid written as a triangle", "梯形荷载按三角形写入"],
    "zero-load": ["Load of 0 left out", "零荷载被略去"],
    "story-without-load": ["Block without loads", "荷载块中没有荷载"],
};

/** The title of a code, or the word of a code that has none here. */
export function findingTitle(code: string): string {
    const titles = Object.hasOwn(kTitles, code) ? kTitles[code] : undefined;
    return titles === undefined ? code : titles[language() === "en" ? 0 : 1];
}
