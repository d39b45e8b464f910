// Every text of the converter that the viewer does not have, in English and Chinese.

import { language } from "../ui/Strings";

/** `{0}` stands for a value. */
const kWords = {
    // The start
    title: ["satwecvt", "satwecvt"],
    about: ["Convert a building from SATWE to a model text file", "将 SATWE 建筑模型转换为模型文本文件"],
    aboutMore: ["See the building as it arrives in the model, with what was lost on the way, and save model and log.",
        "查看模型中实际包含的建筑以及丢失的内容，并保存模型和日志。"],
    private: ["Your files stay on this machine: this page connects to nothing.", "文件不会离开本机：此页面没有任何网络连接。"],
    structureFile: ["Structure file", "结构文件"],
    loadFile: ["Load file", "荷载文件"],
    choose: ["Choose a file", "选择文件"],
    chooseOther: ["Choose another", "另选文件"],
    orDrop: ["or drop it here", "或拖放到此处"],
    dropBoth: ["Drop both files anywhere, in either order, and the conversion begins at once.",
        "将两个文件一起拖放到页面任意位置（不分先后），即开始转换。"],
    dropAnew: ["Drop both files to convert them", "拖放两个文件即可开始转换"],
    exchange: ["Exchange", "互换"],
    convert: ["Convert", "转换"],
    bytes: ["{0} B", "{0} B"],
    kilobytes: ["{0} kB", "{0} kB"],
    megabytes: ["{0} MB", "{0} MB"],

    // What is said of the files
    cannotTell: ["The files do not tell which is which. Check the places, exchange the files if need be, then convert.",
        "无法判断哪个是结构文件、哪个是荷载文件。请核对位置，必要时互换，然后转换。"],
    looksExchanged: ["The files look exchanged: the load file is in the place of the structure file. Exchange them.",
        "两个文件的位置似乎颠倒：荷载文件在结构文件的位置。请互换。"],
    askPlace: ["{0} looks like neither a structure file nor a load file. Drop it on the place where it belongs.",
        "{0} 看起来既不是结构文件也不是荷载文件。请将其拖放到所属的位置。"],
    tooMany: ["{0} files were dropped or chosen. Take two: a structure file and a load file.",
        "收到 {0} 个文件。请只选两个：一个结构文件和一个荷载文件。"],
    folder: ["A folder cannot be converted. Take two files: a structure file and a load file.",
        "无法转换文件夹。请选择两个文件：一个结构文件和一个荷载文件。"],

    // The conversion
    converting: ["Converting {0} and {1}", "正在转换 {0} 和 {1}"],
    stage: ["!!! {0} !!!", "!!! {0} !!!"],
    lineOf: ["line {0} of {1}", "第 {0} 行，共 {1} 行"],
    percent: ["{0} %", "{0} %"],
    progress: ["Lines read", "已读行数"],
    cancel: ["Cancel", "取消"],
    cancelHint: ["Esc cancels, too.", "按 Esc 键也可取消。"],
    cancelled: ["Cancelled; nothing was converted.", "已取消，未进行转换。"],

    // What went wrong
    refused: ["{0}: {1}", "{0}：{1}"],
    unreadable: ["{0}: the browser cannot read this file any more. It was moved, deleted or changed: choose it again.",
        "{0}：浏览器已无法读取此文件。文件可能已被移动、删除或修改，请重新选择。"],
    memory: ["The browser has not enough memory for these files. The program satwecvt converts them.",
        "浏览器内存不足，无法处理这些文件。请用 satwecvt 程序转换。"],
    broken: ["The converter stopped unexpectedly: {0}", "转换程序意外中止：{0}"],
    unknownReason: ["the browser does not say why", "浏览器未说明原因"],
    tooOld: ["This browser is too old to run the converter: it needs WebAssembly with exceptions. Update it, or use "
        + "another one.", "此浏览器版本过旧，无法运行转换程序（需要支持异常处理的 WebAssembly）。请更新或换用其他浏览器。"],

    // What was made
    converted: ["Converted: {0}", "已转换：{0}"],
    saveModel: ["Save model", "保存模型"],
    saveLog: ["Save log", "保存日志"],
    noLog: ["The conversion had nothing to log.", "本次转换没有日志内容。"],
    otherFiles: ["Other files", "其他文件"],
    cannotShow: ["The model is complete, but this browser cannot show the building: {0}",
        "模型已完整生成，但此浏览器无法显示该建筑：{0}"],
    tooLarge: ["it is too large for the memory of the browser.", "模型过大，浏览器内存不足。"],
} as const satisfies Readonly<Record<string, readonly [string, string]>>;

export type WordKey = keyof typeof kWords;

/** A text with its values put in. */
export function words(key: WordKey, ...values: readonly (string | number)[]): string {
    const form = kWords[key][language() === "en" ? 0 : 1];
    return form.replaceAll(/\{(\d)\}/g, (_, at: string) => String(values[Number(at)] ?? ""));
}
