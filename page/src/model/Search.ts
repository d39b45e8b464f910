// Finds what a person types.
import type { Building } from "./Building";
import { itemsWithKey, itemsWithNumber } from "./Items";
import type { Place } from "./Places";

function someItems(items: number[]): Place | undefined {
    return items.length > 0 ? { kind: "items", items } : undefined;
}

/**
 * "123" is an element, "n45" a node, "3/12" all with the key 12 in the story with the key 3. The place has the kind
 * items or node. undefined: the text is no such query, or there is no such thing.
 */
export function findItem(building: Building, query: string): Place | undefined {
    const match = /^\s*(?:(?<element>\d+)|n\s*(?<node>\d+)|(?<story>-?\d+)\s*\/\s*(?<key>-?\d+))\s*$/i.exec(query);
    const { element, node, story, key } = match?.groups ?? {};
    if (element !== undefined) {
        return someItems(itemsWithNumber(building, Number(element)));
    }
    if (node !== undefined) {
        const index = building.nodes.indexOf(Number(node));
        return index < 0 ? undefined : { kind: "node", node: index };
    }
    const index = building.stories.findIndex((one) => one.key === Number(story));
    return index < 0 ? undefined : someItems(itemsWithKey(building, index, Number(key)));
}
