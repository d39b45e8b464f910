// What all shaders of the stage are told: one object for each value, so that it is set once.
import { type Texture, Vector2, Vector3, Vector4 } from "three";
import { rgb, type StageTheme } from "./Theme";

export type SharedUniforms = ReturnType<typeof sharedUniforms>;

/** `typicalLength`: how long an ordinary frame element is, in units of the model. */
export function sharedUniforms(states: Texture, typicalLength: number) {
    return {
        states: { value: states },
        /** Indexes of the lowest and the highest story that is shown. */
        stories: { value: new Vector2(0, 1e9) },
        /** Pixels of the device. */
        viewport: { value: new Vector2(1, 1) },
        pixelRatio: { value: 1 },
        /** A unit vector, and how far along it the building is cut off. */
        plane: { value: new Vector4() },
        /** Towards the light. */
        light: { value: new Vector3(0, 0, 1) },
        /** Where fading into the background begins and ends, as distances from the eye, and how strong it gets. */
        fade: { value: new Vector3(0, 1, 0) },
        typicalLength: { value: typicalLength },
        background: { value: new Vector3() },
        lineColour: { value: new Vector3() },
        textColour: { value: new Vector3() },
        warning: { value: new Vector3() },
        loadColour: { value: new Vector3() },
        supportColour: { value: new Vector3() },
        selection: { value: new Vector3() },
    };
}

export function setThemeColours(shared: SharedUniforms, theme: StageTheme): void {
    rgb(theme.background, shared.background.value);
    rgb(theme.line, shared.lineColour.value);
    rgb(theme.text, shared.textColour.value);
    rgb(theme.warning, shared.warning.value);
    rgb(theme.load, shared.loadColour.value);
    rgb(theme.support, shared.supportColour.value);
    rgb(theme.selection, shared.selection.value);
}
