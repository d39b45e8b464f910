// What the module asks of its host: properties of the object that the module is made of.
mergeInto(LibraryManager.library, {
    satwecvt_read_input: function (input, offset, to, size) {
        return Module["readInput"](input, offset, HEAPU8.subarray(to, to + size));
    },
    satwecvt_tell_progress: function (line, total, stage, length) {
        Module["tellProgress"](line, total, UTF8ToString(stage, length));
    },
});
