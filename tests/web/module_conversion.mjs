// Converts a pair of files with the module of the page, as library_conversion does it with the library:
// module_conversion.mjs STRUCTURE LOAD. Environment: as ModuleConversion.mjs needs it.

import { writeFileSync } from "node:fs";

import { convert } from "./ModuleConversion.mjs";

const { told, outputs } = await convert(...process.argv.slice(2));
for (const [name, bytes] of Object.entries(outputs)) {
    writeFileSync(name, bytes);
}
console.log(JSON.stringify(told));
