// The page of a release in a browser: two files that are dropped on it become the model that the program writes.
//
// Environment: that of tests/web/Converter.mjs; CONVERTER_PAGE and SATWECVT are those of the release.

import { after, before, test } from "node:test";

import { launch } from "../page/Browser.mjs";
import { OpenConverter, sample } from "../web/Converter.mjs";

let browser;
before(async () => {
    browser = await launch();
});
after(() => browser?.close());

for (const name of ["frame", "tower"]) {
    test(`the ${name} becomes a model`, async () => {
        const pair = sample(name);
        const opened = await OpenConverter.open(browser);
        await opened.drop(pair.paths);
        await opened.expectOutputs(pair);
        await opened.expectSilence();
        await opened.close();
        pair.remove();
    });
}
