// The glue of the module, which the build finds in the folder that it is told.
import type { ModuleFactory } from "./ConverterModule";

declare const makeModule: ModuleFactory;
export default makeModule;
