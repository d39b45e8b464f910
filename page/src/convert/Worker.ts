// The script of the worker.
import makeModule from "satwecvt-module";

import { WorkerSide } from "./WorkerSide";

/** What a worker has and a page has not, or otherwise. */
declare const self: {
    postMessage(message: unknown, moved: Transferable[]): void;
    addEventListener(type: "message", listener: (event: MessageEvent) => void): void;
};
declare class FileReaderSync {
    readAsArrayBuffer(blob: Blob): ArrayBuffer;
}

const reader = new FileReaderSync();
const side = new WorkerSide(
    makeModule,
    (blob) => new Uint8Array(reader.readAsArrayBuffer(blob)),
    (message, moved) => self.postMessage(message, moved),
);
self.addEventListener("message", ({ data }) => void side.take(data));
