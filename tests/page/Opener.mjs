// The script of a page that opens and closes its building as often as it is asked to, in the place of the viewer's own.

import { bytesOfBase64 } from "../../page/src/data/Base64";
import { readColumns } from "../../page/src/data/Columns";
import { readBuilding } from "../../page/src/model/Building";
import { startAnnouncer } from "../../page/src/ui/Announcer";
import { button } from "../../page/src/ui/Dom";
import { Page } from "../../page/src/ui/Page";
import { afterPaint } from "../../page/src/ui/PageData";
import { language, startLanguage } from "../../page/src/ui/Strings";
import { startTheme } from "../../page/src/ui/Theme";

const kSave = { en: "Save", zh: "保存" };

const holder = document.getElementById("page");
const bytes = bytesOfBase64(document.getElementById("picture").textContent);

startLanguage();
const dark = startTheme();
startAnnouncer();
holder.replaceChildren();

/** The page that is open, or was the last, and the one before it. */
let page;
let former;

window.satwecvt = {
    /** Every page has a building of its own. */
    open() {
        const ownButtons = () => [button(kSave[language()], () => page.close())];
        former = page;
        page = new Page(holder, readBuilding(readColumns(bytes)), dark, ownButtons);
        return page.open();
    },
    close() {
        page.close();
    },
    closeFormer() {
        former.close();
    },
    /** Waits for the first frame, and tells what it took and how it looks. */
    async drawn() {
        const { stage } = page.actions;
        while (stage.statistics().calls === 0) {
            await afterPaint();
        }
        return { ...stage.statistics(), picture: stage.picture() };
    },
    /** Lets go of the page, as its owner does after it was closed. */
    forget() {
        page = undefined;
    },
};
