#!/usr/bin/env python3
"""Draws the starter theme's icons into theme/icons, or into the folder that is named.

Every icon stands on a grid of 24 units and is made of strokes of 2 units with round caps and
joins. Tinting rewrites `fill` and never `stroke`, so the strokes are written as closed outlines,
all of one icon in one path: shapes of their own would shine through each other at half opacity.
"""
import math
import pathlib
import sys

WHITE = "#ffffff"


def n(value):
    return f"{round(value, 2) + 0.0:.2f}".rstrip("0").rstrip(".")


def at(point):
    return f"{n(point[0])} {n(point[1])}"


def polar(cx, cy, r, degrees):
    angle = math.radians(degrees)
    return cx + r * math.cos(angle), cy + r * math.sin(angle)


def capsule(x1, y1, x2, y2):
    length = math.hypot(x2 - x1, y2 - y1)
    nx, ny = (y2 - y1) / length, -(x2 - x1) / length
    return (f"M{at((x1 + nx, y1 + ny))}L{at((x2 + nx, y2 + ny))}A1 1 0 0 1 {at((x2 - nx, y2 - ny))}"
            f"L{at((x1 - nx, y1 - ny))}A1 1 0 0 1 {at((x1 + nx, y1 + ny))}Z")


def line(*xy):
    points = list(zip(xy[::2], xy[1::2]))
    return "".join(capsule(*a, *b) for a, b in zip(points, points[1:]))


def poly(*xy):
    return line(*xy, *xy[:2])


def circle(cx, cy, r, sweep=1):
    return (f"M{at((cx - r, cy))}A{n(r)} {n(r)} 0 1 {sweep} {at((cx + r, cy))}"
            f"A{n(r)} {n(r)} 0 1 {sweep} {at((cx - r, cy))}Z")


def dot(cx, cy, r=1.25):
    return circle(cx, cy, r)


def ring(cx, cy, r):
    return circle(cx, cy, r + 1) + circle(cx, cy, r - 1, 0)


def arc(cx, cy, r, start, end):
    """Clockwise from start to end, in degrees; 0 is to the right, 90 is down."""
    large = 1 if end - start > 180 else 0
    outer, inner = r + 1, r - 1
    return (f"M{at(polar(cx, cy, outer, start))}"
            f"A{n(outer)} {n(outer)} 0 {large} 1 {at(polar(cx, cy, outer, end))}"
            f"A1 1 0 0 1 {at(polar(cx, cy, inner, end))}"
            f"A{n(inner)} {n(inner)} 0 {large} 0 {at(polar(cx, cy, inner, start))}"
            f"A1 1 0 0 1 {at(polar(cx, cy, outer, start))}Z")


def rounded(x, y, w, h, r, sweep):
    corners = [(x + r, y), (x + w - r, y), (x + w, y + r), (x + w, y + h - r),
               (x + w - r, y + h), (x + r, y + h), (x, y + h - r), (x, y + r)]
    sides = [(0, 1), (2, 3), (4, 5), (6, 7)] if sweep else [(1, 0), (7, 6), (5, 4), (3, 2)]
    turn = f"A{n(r)} {n(r)} 0 0 {sweep} " if r > 0 else "L"
    path = f"M{at(corners[sides[0][0]])}"
    for index, (_, end) in enumerate(sides):
        start = corners[sides[(index + 1) % 4][0]]
        path += f"L{at(corners[end])}{turn}{at(start)}"
    return path + "Z"


def rect(x, y, w, h, r=1):
    """The centre line of the stroke."""
    return rounded(x - 1, y - 1, w + 2, h + 2, r + 1, 1) + \
        rounded(x + 1, y + 1, w - 2, h - 2, max(r - 1, 0), 0)


def shoulders(left, right):
    return line(left, 21, left, 19) + arc(left + 4, 19, 4, 180, 270) + \
        line(left + 4, 15, right - 4, 15) + arc(right - 4, 19, 4, 270, 360) + \
        line(right, 19, right, 21)


def gear(teeth, outer, inner):
    points = []
    step = 360 / teeth
    for tooth in range(teeth):
        for radius, offset in ((inner, -0.32), (outer, -0.2), (outer, 0.2), (inner, 0.32)):
            points += polar(12, 12, radius, (tooth + offset) * step - 90)
    return poly(*points)


def star(outer, inner):
    points = []
    for i in range(10):
        points += polar(12, 12.75, inner if i % 2 else outer, i * 36 - 90)
    return poly(*points)


LID_RADIUS = 10.19
LID_DROP = 3.69  # of the lids' centres from the middle line
LID_HALF = math.degrees(math.asin(9.5 / LID_RADIUS))


def lid(upper, start=0.0, end=1.0):
    """A part of an eyelid; the upper one runs from the left corner, the lower from the right."""
    first = (-90 if upper else 90) - LID_HALF
    return arc(12, 12 + (LID_DROP if upper else -LID_DROP), LID_RADIUS,
               first + 2 * LID_HALF * start, first + 2 * LID_HALF * end)


SPEAKER = poly(3, 9, 7, 9, 12, 5, 12, 19, 7, 15, 3, 15)
TRAY = line(4, 15, 4, 20, 20, 20, 20, 15)
LENS = ring(10, 10, 7) + line(15.2, 15.2, 21, 21)
PADLOCK = rect(5, 11, 14, 10, 2) + dot(12, 16, 1.5) + line(8, 11, 8, 7)

ICONS = {
    "arrow-down": line(12, 4, 12, 20) + line(5, 13, 12, 20, 19, 13),
    "arrow-left": line(20, 12, 4, 12) + line(11, 5, 4, 12, 11, 19),
    "arrow-right": line(4, 12, 20, 12) + line(13, 5, 20, 12, 13, 19),
    "arrow-up": line(12, 20, 12, 4) + line(5, 11, 12, 4, 19, 11),
    "bell": line(4, 17, 20, 17) + line(6, 17, 6, 10) + arc(12, 10, 6, 180, 360)
            + line(18, 10, 18, 17) + line(10, 21, 14, 21),
    "calendar": rect(3, 5, 18, 16, 2) + line(3, 10, 21, 10) + line(8, 3, 8, 6) + line(16, 3, 16, 6)
                + dot(8, 15.5) + dot(12, 15.5) + dot(16, 15.5),
    "camera": rect(3, 6, 12, 12, 2) + poly(15, 11, 21, 7, 21, 17, 15, 13),
    "camera-off": line(8.5, 6, 13, 6) + arc(13, 8, 2, 270, 360) + line(15, 8, 15, 11, 21, 7, 21, 15)
                  + line(13, 18, 5, 18) + arc(5, 16, 2, 90, 180) + line(3, 16, 3, 8)
                  + line(3, 3, 21, 21),
    "chart": line(3, 3, 3, 21, 21, 21) + line(7, 16, 11, 11, 14, 14, 20, 6),
    "check": line(4, 12, 10, 18, 20, 7),
    "chevron-down": line(5, 9, 12, 16, 19, 9),
    "chevron-left": line(15, 5, 8, 12, 15, 19),
    "chevron-right": line(9, 5, 16, 12, 9, 19),
    "chevron-up": line(5, 15, 12, 8, 19, 15),
    "clock": ring(12, 12, 9) + line(12, 7, 12, 12, 15, 15),
    "close": line(5, 5, 19, 19) + line(19, 5, 5, 19),
    "dome-camera": line(3, 6, 21, 6) + line(5, 6, 5, 12) + arc(12, 12, 7, 0, 180)
                   + line(19, 12, 19, 6) + dot(12, 12, 2.5),
    "dot": circle(12, 12, 4.5),
    "download": line(12, 3, 12, 15) + line(7, 10, 12, 15, 17, 10) + TRAY,
    "drag": "".join(dot(x, y, 1.5) for x in (9, 15) for y in (6, 12, 18)),
    "edit": poly(4, 20, 4, 16, 16, 4, 20, 8, 8, 20) + line(13, 7, 17, 11),
    "error": ring(12, 12, 9) + line(9, 9, 15, 15) + line(15, 9, 9, 15),
    "export": line(12, 15, 12, 3) + line(7, 8, 12, 3, 17, 8) + TRAY,
    "eye": lid(True) + lid(False) + ring(12, 12, 3),
    "eye-off": lid(True, 0.42, 1) + lid(False, 0, 0.06) + lid(False, 0.42, 1) + lid(True, 0, 0.13)
               + arc(12, 12, 3, 110, 160) + line(3, 3, 21, 21),
    "filter": poly(3, 4, 21, 4, 14, 12, 14, 18, 10, 21, 10, 12),
    "folder": poly(3, 5, 9, 5, 11, 8, 21, 8, 21, 19, 3, 19),
    "grid": rect(4, 4, 6, 6) + rect(14, 4, 6, 6) + rect(4, 14, 6, 6) + rect(14, 14, 6, 6),
    "handle": circle(12, 12, 10),
    "handle-ring": ring(12, 12, 10),
    "info": ring(12, 12, 9) + line(12, 11, 12, 17) + dot(12, 7.5),
    "link": line(10, 7, 7, 7) + arc(7, 12, 5, 90, 270) + line(7, 17, 10, 17)
            + line(14, 7, 17, 7) + arc(17, 12, 5, -90, 90) + line(17, 17, 14, 17)
            + line(8, 12, 16, 12),
    "lock": PADLOCK + arc(12, 7, 4, 180, 360) + line(16, 7, 16, 11),
    "map-pin": arc(12, 10, 7, 140.5, 399.5) + ring(12, 10, 2)
               + line(*polar(12, 10, 7, 140.5), 12, 21, *polar(12, 10, 7, 39.5)),
    "maximize": line(3, 8, 3, 3, 8, 3) + line(16, 3, 21, 3, 21, 8) + line(21, 16, 21, 21, 16, 21)
                + line(8, 21, 3, 21, 3, 16),
    "menu": line(4, 6, 20, 6) + line(4, 12, 20, 12) + line(4, 18, 20, 18),
    "microphone": rect(9, 3, 6, 11, 3) + arc(12, 11, 7, 0, 180) + line(12, 18, 12, 21)
                  + line(8, 21, 16, 21),
    "minus": line(4, 12, 20, 12),
    "more": dot(5, 12, 1.75) + dot(12, 12, 1.75) + dot(19, 12, 1.75),
    "mute": SPEAKER + line(16, 9, 22, 15) + line(22, 9, 16, 15),
    "pause": rect(6, 4, 4, 16) + rect(14, 4, 4, 16),
    "picture": rect(3, 4, 18, 16, 2) + dot(8, 9, 1.75) + line(4, 18, 10, 13, 13, 16, 17, 11, 20, 14),
    "play": poly(7, 4, 20, 12, 7, 20),
    "plus": line(12, 4, 12, 20) + line(4, 12, 20, 12),
    "ptz": dot(12, 12, 2.5) + line(9, 6, 12, 3, 15, 6) + line(9, 18, 12, 21, 15, 18)
           + line(6, 9, 3, 12, 6, 15) + line(18, 9, 21, 12, 18, 15),
    "record": ring(12, 12, 9) + dot(12, 12, 4),
    "refresh": arc(12, 12, 8, 35, 338) + line(20, 3, 20, 9, 14, 9),
    "search": LENS,
    "settings": gear(6, 9.4, 6.6) + ring(12, 12, 2.5),
    "snapshot": poly(3, 8, 7, 8, 9, 4, 15, 4, 17, 8, 21, 8, 21, 20, 3, 20) + ring(12, 13, 3),
    "sort-asc": poly(12, 8, 19, 16, 5, 16),
    "sort-desc": poly(5, 8, 19, 8, 12, 16),
    "speaker": SPEAKER + arc(12, 12, 5, -37, 37) + arc(12, 12, 9, -45, 45),
    "star": star(10.2, 4.6),
    "step-back": poly(19, 5, 19, 19, 8, 12) + line(4, 5, 4, 19),
    "step-forward": poly(5, 5, 16, 12, 5, 19) + line(20, 5, 20, 19),
    "stop": rect(5, 5, 14, 14, 2),
    "trash": line(3, 6, 21, 6) + line(9, 6, 9, 3, 15, 3, 15, 6)
             + line(5, 6, 6, 21, 18, 21, 19, 6) + line(10, 11, 10, 16) + line(14, 11, 14, 16),
    "unlock": PADLOCK + arc(12, 7, 4, 180, 335),
    "user": ring(12, 7, 4) + shoulders(4, 20),
    "users": ring(9, 7, 4) + shoulders(2, 16) + arc(15, 7, 4, -75, 75)
             + arc(18, 19, 4, 275, 360) + line(22, 19, 22, 21),
    "warning": poly(12, 3, 22, 20, 2, 20) + line(12, 9, 12, 14) + dot(12, 17),
    "zoom-in": LENS + line(10, 7, 10, 13) + line(7, 10, 13, 10),
    "zoom-out": LENS + line(7, 10, 13, 10),
}

# The places where a file may keep its colour. Tinting writes a dot before a rule's name, so a rule
# that should still match afterwards is named by the tag and met again as a class. Attributes beat
# rules in the renderer, so only the empty frame of such a file has one.
STYLED = {"camera", "record", "search", "check", "bell", "warning", "clock", "user"}
STYLED_AND_FILLED = {"camera-off", "play", "settings", "lock", "calendar", "star"}


# A sheet shows an icon as it stands, so the marks of disabled indicators need files of their own.
DIMMED = {"check", "chevron-down", "chevron-up", "minus"}
DIM = "#8a93a3"


def document(name, path, color=WHITE):
    before, extra = "", f' fill="{color}"'
    if color == WHITE and name in STYLED:
        before, extra = f"  <style>.a{{fill:{WHITE};}}</style>\n", ' class="a"'
    elif name in STYLED_AND_FILLED:
        before = (f"  <style>path{{fill:{WHITE};}}</style>\n"
                  '  <rect width="24" height="24" fill="none"/>\n')
        extra = ' class="path"'
    return ('<svg xmlns="http://www.w3.org/2000/svg" width="24" height="24" viewBox="0 0 24 24">\n'
            f'{before}  <path{extra} d="{path}"/>\n</svg>\n')


def main():
    own = pathlib.Path(__file__).resolve().parent.parent / "theme" / "icons"
    folder = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else own
    folder.mkdir(parents=True, exist_ok=True)
    for name, path in ICONS.items():
        (folder / f"{name}.svg").write_text(document(name, path), encoding="utf-8")
        if name in DIMMED:
            (folder / f"{name}-dim.svg").write_text(document(name, path, DIM), encoding="utf-8")


main()
