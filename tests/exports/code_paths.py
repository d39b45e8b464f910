"""Follows the machine code of a function from its entry to its ends, to see what it takes off its caller's stack.

A disassembly from top to bottom would read padding, data and the next function as well. This one goes where the
processor can go: on, to the target of every jump, and both ways at a conditional one. A called function is taken to
come back. What cannot be followed, such as a jump through a register, is an error, not an end.
"""

import capstone
from capstone import x86

MODES = {32: capstone.CS_MODE_32, 64: capstone.CS_MODE_64}
LONGEST_INSTRUCTION = 15


class CannotFollow(Exception):
    pass


def bytes_taken_off(code, entry, bits):
    """What each `ret` that is reached from `entry`, an offset in `code`, takes off beyond the return address.

    A dictionary, by the offset of the `ret`. A caller that cleans the stack itself, as with __cdecl, needs zeros.
    """
    decoder = capstone.Cs(capstone.CS_ARCH_X86, MODES[bits])
    decoder.detail = True
    returns = {}
    seen = set()
    pending = [entry]
    while pending:
        offset = pending.pop()
        if offset in seen:
            continue
        seen.add(offset)
        instruction = decode(decoder, code, offset)
        if instruction.id == x86.X86_INS_RET:
            returns[offset] = instruction.operands[0].imm if instruction.operands else 0
        else:
            pending += next_offsets(instruction)
    return returns


def decode(decoder, code, offset):
    if not 0 <= offset < len(code):
        raise CannotFollow(f"leaves the code for {offset:#x}")
    for instruction in decoder.disasm(code[offset:offset + LONGEST_INSTRUCTION], offset, 1):
        return instruction
    raise CannotFollow(f"no instruction at {offset:#x}")


def next_offsets(instruction):
    """Where the processor can go from an instruction that is no plain `ret`."""
    if instruction.id == x86.X86_INS_UD2:
        return []  # what a compiler puts where nothing comes by
    if instruction.group(capstone.CS_GRP_RET) or instruction.group(capstone.CS_GRP_IRET):
        raise CannotFollow(f"{instruction.mnemonic} at {instruction.address:#x}")
    after = instruction.address + instruction.size
    if not instruction.group(capstone.CS_GRP_JUMP):
        return [after]
    target = instruction.operands[0]
    if target.type != x86.X86_OP_IMM:
        raise CannotFollow(f"{instruction.mnemonic} {instruction.op_str} at {instruction.address:#x}")
    return [target.imm] if instruction.id == x86.X86_INS_JMP else [after, target.imm]
