// The page from the files to the building and back: what follows what. One screen is shown at a time.

import type { ConverterClient } from "../convert/ConverterClient";
import { failureOf } from "../convert/Failure";
import { exchanged, looksExchanged, looksRight, type Pair, type Place, placeOf } from "../convert/Pair";
import { baseName } from "../ui/FileName";
import { BuildingScreen } from "./BuildingScreen";
import { showHint } from "./Hint";
import { alert, failureNote, type Files, kNoFiles, type Note } from "./Notes";
import { ProgressScreen } from "./ProgressScreen";
import type { Screen } from "./Screen";
import { StartScreen } from "./StartScreen";
import { words } from "./Words";

const isWhole = (files: Files): files is Pair<File> => files.structure !== undefined && files.load !== undefined;

const focus = (id: string): void => document.getElementById(id)?.focus();

export class ConverterPage {
    private screen: Screen | undefined;
    private version = "";
    private files = kNoFiles;
    /** Counts what was begun: what was begun before the last thing has nothing to say any more. */
    private turn = 0;

    /** `wantsPlans`: the browser shows plans instead of the building, as far as it says now. */
    constructor(
        private readonly holder: HTMLElement, private readonly client: ConverterClient,
        private readonly wantsPlans: () => boolean,
    ) {}

    /** Shows the start. */
    async open(): Promise<void> {
        await this.during(async () => {
            this.version = await this.client.version();
            this.showStart();
        });
    }

    /** Makes what is shown anew, after the theme has changed. */
    refresh(): void {
        this.screen?.make();
    }

    /** Whether files can be taken now. */
    get accepts(): boolean {
        return this.screen instanceof StartScreen || (this.screen instanceof BuildingScreen && this.screen.isOpen);
    }

    /** Takes files that were dropped, or chosen for a place. Those of a building that is shown are forgotten. */
    async take(files: readonly File[], place: Place | undefined): Promise<void> {
        if (!this.accepts || files.length === 0) {
            return;
        }
        const [first, second] = files;
        if (files.length > 2) {
            this.complain(() => words("tooMany", files.length));
        } else if (second !== undefined) {
            await this.takeBoth({ structure: first, load: second });
        } else if (place !== undefined) {
            await this.put(first, place);
        } else {
            await this.takeOne(first);
        }
    }

    /** Says that a folder is of no use. */
    refuseFolder(): void {
        this.complain(() => words("folder"));
    }

    /** Two files in the order in which they came. The conversion begins where it is plain which is which. */
    private async takeBoth(came: Pair<File>): Promise<void> {
        this.files = came;
        this.showStart();
        await this.during(async (isCurrent) => {
            const kinds = await this.client.kinds(came);
            if (!isCurrent()) {
                return;
            }
            if (!looksRight(kinds) && !looksExchanged(kinds)) {
                this.showStart(alert(() => words("cannotTell")));
                return;
            }
            this.files = looksExchanged(kinds) ? exchanged(came) : came;
            await this.convert();
        });
    }

    /** One file, which goes to the place that it looks made for. */
    private async takeOne(file: File): Promise<void> {
        this.showStart();
        const asked = { structure: file, load: undefined };
        await this.during(async (isCurrent) => {
            const { structure: kind } = await this.client.kinds(asked);
            const place = placeOf(kind);
            if (!isCurrent()) {
                return;
            }
            if (place === undefined) {
                this.showStart(alert(() => words("askPlace", baseName(file.name))));
            } else {
                await this.put(file, place);
            }
        }, asked);
    }

    private async put(file: File, place: Place): Promise<void> {
        await this.arrange({ ...this.files, [place]: file });
    }

    /** Shows files in their places, and says so where they look exchanged. */
    private async arrange(files: Files): Promise<void> {
        this.files = files;
        this.showStart();
        if (!isWhole(files)) {
            return;
        }
        await this.during(async (isCurrent) => {
            const kinds = await this.client.kinds(files);
            if (isCurrent() && looksExchanged(kinds)) {
                this.showStart(alert(() => words("looksExchanged")));
            }
        });
    }

    private async convert(): Promise<void> {
        const { files, client } = this;
        if (!isWhole(files)) {
            return;
        }
        await this.during(async () => {
            const names = { structure: baseName(files.structure.name), load: baseName(files.load.name) };
            const progress = new ProgressScreen(this.holder, this.version, names, () => client.cancel());
            this.change(progress);
            focus("converting");  // not Cancel, which a key that is held down would press
            const conversion = await client.convert(files, this.wantsPlans(), (how) => progress.show(how));
            const building = new BuildingScreen(this.holder, this.version, conversion, () => this.startAnew());
            this.files = kNoFiles;
            this.change(building);
            await building.open(conversion.picture);
        });
    }

    private startAnew(): void {
        this.showStart();
        focus("structure-file");
    }

    /** A sentence that changes nothing of what is shown. */
    private complain(sentence: () => string): void {
        if (this.screen instanceof BuildingScreen) {
            showHint(sentence());
        } else {
            this.showStart(alert(sentence));
        }
    }

    private showStart(note?: Note): void {
        const state = { version: this.version, files: this.files, note, canConvert: true };
        if (this.screen instanceof StartScreen) {
            this.screen.update(state);
            return;
        }
        this.change(new StartScreen(this.holder, state, {
            chosen: (files, place) => void this.take(files, place),
            exchange: () => void this.arrange(exchanged(this.files)),
            convert: () => void this.convert(),
        }));
    }

    private change(screen: Screen): void {
        this.screen?.close();
        this.screen = screen;
        screen.make();
    }

    /**
     * Does what takes a while; the holder has the attribute aria-busy meanwhile. What fails leads to the start, and is
     * about the files that were asked for.
     */
    private async during(work: (isCurrent: () => boolean) => Promise<void>, asked = this.files): Promise<void> {
        const turn = ++this.turn;
        const isCurrent = (): boolean => turn === this.turn;
        this.holder.setAttribute("aria-busy", "true");
        try {
            await work(isCurrent);
        } catch (error) {
            if (isCurrent()) {
                this.showStart(failureNote(failureOf(error), asked));
                focus("convert");
            }
        }
        if (isCurrent()) {
            this.holder.removeAttribute("aria-busy");
        }
    }
}
