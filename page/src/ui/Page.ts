// The page: its frame, the picture in its middle, and everything around it, in the language that is spoken.

import type { Building } from "../model/Building";
import { Stage } from "../stage/Stage";
import { Actions } from "./Actions";
import { announce, announceSelection } from "./Announcer";
import { forgetCopies } from "./Clipboard";
import { element } from "./Dom";
import { listenForKeys } from "./Keyboard";
import { countText } from "./Numbers";
import { afterPaint } from "./PageData";
import { PictureFrame } from "./PictureFrame";
import { plans } from "./Plans";
import { PrintSheet } from "./PrintSheet";
import { linkStage } from "./StageLink";
import { changeLanguage, text } from "./Strings";
import { tabPanel } from "./TabPanel";
import { watchSystemTheme } from "./Theme";
import { titleBar } from "./TitleBar";
import { toolbar } from "./Toolbar";
import { Viewer } from "./Viewer";

export class Page {
    readonly actions: Actions;
    private readonly viewer: Viewer;
    private readonly canvas = element("canvas", { tabindex: 0, role: "application" });
    private readonly sheet: PrintSheet;
    private readonly formerTitle = document.title;
    private readonly closing = new AbortController();
    private picture: PictureFrame;
    /** Why the browser cannot draw the building; undefined while it can. */
    private reason: string | undefined;

    /** `ownButtons` are put into the bar at the top, and asked for whenever it is made. */
    constructor(
        private readonly holder: HTMLElement, building: Building, dark: boolean,
        private readonly ownButtons: () => readonly HTMLElement[] = () => [],
    ) {
        this.viewer = new Viewer(building, dark);
        this.actions = new Actions(this.viewer);
        this.sheet = new PrintSheet(this.actions);
        this.picture = new PictureFrame(this.actions, this.canvas);
    }

    /** Shows the frame, then the building in it. */
    async open(): Promise<void> {
        this.make();
        this.picture.say(text("drawingElements", countText(this.viewer.building.itemCount)));
        await afterPaint();
        const { signal } = this.closing;
        if (signal.aborted) {
            return;
        }
        try {
            this.actions.stage = this.makeStage();
        } catch (error) {
            this.reason = error instanceof Error ? error.message : String(error);
        }
        this.make();
        listenForKeys(this.actions, {
            changeLanguage: () => this.changeLanguage(),
            focusSearch: () => this.holder.querySelector<HTMLElement>("[type=search]")?.focus(),
        }, signal);
        watchSystemTheme((isDark) => this.viewer.change({ dark: isDark }), signal);
        this.sheet.watch(signal);
    }

    /** Leaves its holder and the document as they were. It cannot be opened again. */
    close(): void {
        if (this.closing.signal.aborted) {
            return;
        }
        this.closing.abort();
        this.viewer.unwatch();
        this.actions.stage?.dispose();
        this.actions.stage = undefined;
        forgetCopies();
        announce("");
        document.title = this.formerTitle;
        this.holder.classList.remove("without-picture");
        this.holder.replaceChildren();
    }

    private makeStage(): Stage {
        return new Stage(this.canvas, this.viewer.building, {
            picked: (item) => this.actions.pick(item),
            hovered: (load, x, y) => this.picture.showLoad(load, x, y),
            frame: () => this.picture.update(),
        });
    }

    /** Makes everything but the canvas, in the language that is spoken. */
    private make(): void {
        const { actions, viewer } = this;
        const { stage } = actions;
        viewer.unwatch();
        document.title = text("title", viewer.building.files.structure);
        this.picture = new PictureFrame(actions, this.canvas);
        const middle = this.reason === undefined
            ? [toolbar(actions), this.picture.frame]
            : [plans(actions, this.reason)];
        this.holder.classList.toggle("without-picture", this.reason !== undefined);
        this.holder.replaceChildren(this.titleBar(), ...middle, this.sheet.section, tabPanel(actions));
        announceSelection(viewer);
        if (stage !== undefined) {
            linkStage(viewer, stage);
            this.picture.update();
        }
    }

    private titleBar(): HTMLElement {
        return titleBar(this.actions, {
            own: this.ownButtons(),
            print: () => this.sheet.print(),
            changeLanguage: () => this.changeLanguage(),
        });
    }

    /** The focus stays on the canvas, or on the button that changes the language. */
    private changeLanguage(): void {
        const button = (): HTMLElement | null => this.holder.querySelector("button.language");
        const { activeElement } = document;
        const hadButton = activeElement !== null && activeElement === button();
        const hadCanvas = activeElement === this.canvas;
        changeLanguage();
        this.make();
        if (hadCanvas) {
            this.canvas.focus();
        } else if (hadButton) {
            button()?.focus();
        }
    }
}
