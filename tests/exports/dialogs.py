"""The library's two dialogs, field by field, as a user has to see them. What a word like LTEXT of a resource script
implies is written out: the class of the window and its styles."""

from dialog_template import Bits, Control, Dialog, Font

# Styles of every window.
WS_POPUP = 0x80000000
WS_CHILD = 0x40000000
WS_VISIBLE = 0x10000000
WS_BORDER = 0x00800000
WS_DLGFRAME = 0x00400000
WS_CAPTION = WS_BORDER | WS_DLGFRAME
WS_SYSMENU = 0x00080000
WS_GROUP = 0x00020000
WS_TABSTOP = 0x00010000

# Styles of dialogs.
DS_SETFONT = 0x0040
DS_MODALFRAME = 0x0080
DS_CENTER = 0x0800

# The numbers that stand for the classes of buttons, edits and statics, and their styles.
BUTTON = 0x0080
BS_PUSHBUTTON = 0x0000
BS_DEFPUSHBUTTON = 0x0001
BS_GROUPBOX = 0x0007
EDIT = 0x0081
ES_LEFT = 0x0000
ES_AUTOHSCROLL = 0x0080
STATIC = 0x0082
SS_LEFT = 0x0000
SS_CENTER = 0x0001

PROGRESS_BAR = "msctls_progress32"

UNNAMED = -1
OK = 1
CANCEL = 2

ANY_WEIGHT = 0  # as a resource script with a size and a face alone asks for it
DEFAULT_CHARSET = 1


def dialog(style, width, height, title, font, controls):
    return Dialog(help_id=0, extended_style=Bits(0), style=Bits(style), x=0, y=0, width=width, height=height, menu="",
                  window_class="", title=title, font=font, controls=controls)


def font(size, face):
    return Font(size=size, weight=ANY_WEIGHT, italic=0, charset=DEFAULT_CHARSET, face=face)


def control(window_class, style, control_id, title, place):
    x, y, width, height = place
    return Control(help_id=0, extended_style=Bits(0), style=Bits(WS_CHILD | WS_VISIBLE | style), x=x, y=y, width=width,
                   height=height, id=control_id, window_class=window_class, title=title, extra=b"")


def group_box(control_id, title, *place):
    return control(BUTTON, BS_GROUPBOX, control_id, title, place)


def push_button(control_id, title, *place):
    return control(BUTTON, BS_PUSHBUTTON | WS_TABSTOP, control_id, title, place)


def default_push_button(control_id, title, *place):
    return control(BUTTON, BS_DEFPUSHBUTTON | WS_TABSTOP, control_id, title, place)


def path_edit(control_id, *place):
    return control(EDIT, ES_LEFT | ES_AUTOHSCROLL | WS_BORDER | WS_TABSTOP, control_id, "", place)


def text_on_the_left(control_id, title, *place):
    return control(STATIC, SS_LEFT | WS_GROUP, control_id, title, place)


def text_in_the_middle(control_id, title, *place):
    return control(STATIC, SS_CENTER | WS_GROUP, control_id, title, place)


def progress_bar(control_id, *place):
    return control(PROGRESS_BAR, 0, control_id, "", place)  # no border of its own


IMPORT = dialog(
    DS_MODALFRAME | DS_SETFONT | WS_POPUP | WS_CAPTION | WS_SYSMENU,  # not visible: the system shows a modal dialog
    243, 80, "PKPM Import", font(8, "Tahoma"), [
        group_box(UNNAMED, "Structure File", 7, 1, 229, 29),
        path_edit(8002, 14, 12, 196, 12),
        push_button(8003, "...", 213, 12, 16, 11),
        group_box(UNNAMED, "Load File", 7, 31, 229, 29),
        path_edit(8001, 14, 42, 196, 12),
        push_button(8004, "...", 213, 42, 16, 11),
        default_push_button(OK, "OK", 144, 63, 45, 12),
        push_button(CANCEL, "Cancel", 191, 63, 45, 12),
    ])

PROGRESS = dialog(
    DS_MODALFRAME | DS_CENTER | DS_SETFONT | WS_POPUP | WS_VISIBLE | WS_CAPTION,  # no system menu
    194, 70, "Conversion Progress Window", font(9, "MS Sans Serif"), [
        progress_bar(1001, 7, 7, 180, 14),
        text_on_the_left(UNNAMED, "Total Line", 6, 27, 44, 8),
        text_on_the_left(UNNAMED, "Parsing Line", 7, 39, 49, 8),
        text_on_the_left(UNNAMED, ":", 56, 27, 8, 8),
        text_on_the_left(UNNAMED, ":", 56, 39, 8, 8),
        text_on_the_left(1003, "Total Line", 66, 27, 44, 8),
        text_on_the_left(1004, "Total Line", 66, 39, 44, 8),
        push_button(4002, "Cancel", 137, 22, 50, 24),
        text_in_the_middle(8004, "Static", 7, 55, 180, 10),
    ])

DIALOGS = {8000: IMPORT, 1001: PROGRESS}
