# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT
"""Cash devices of which is known where every note and coin truly lies."""

import math
import sys
from collections import Counter, namedtuple

Kind = namedtuple("Kind", "device values channels bill_type takes")
VALIDATOR = Kind(1, (50, 100, 500, 1000), (), 0, True)
RECYCLER = Kind(7, (20, 50, 100, 500), (1, 2, 3), 0, True)
COIN_ACCEPTOR = Kind(100, (1, 2, 5, 10), (), 1, True)
HOPPER = Kind(150, (1, 5, 10), (1, 2), 1, False)
DISPENSER = Kind(51, (100, 500, 1000), (2, 3), 0, False)

IDLE = {"state": "idling", "current_note": 0, "current_channel": 0}
WELL = {"online": True, "halt": False, "error_critical": False, "error_text": ""}
TROUBLES = ({"state": "jammed"}, {"state": "error", "error_critical": True, "error_text": "motor"},
            {"online": False}, {"halt": True}, {"error_critical": True, "error_text": "sensor"})
QUIET_TIMES = ([{"enabled": False}, {"enabled": True}], [{"state": "busy"}, {"state": "idling"}],
               [{"online": False}, {"online": True}], [{"state": "jammed"}, {"state": "idling"}],
               [{"stacker_full": True}, {"stacker_full": False}], [{"cash": 1234}])


class Period:
    """What truly lay in a device between two collections. A place is (name, channel, denomination)."""

    def __init__(self, content, removed=None, begin=0):
        self.opening = Counter(content)
        self.now = content  # that of the device, until the cassette is taken out
        self.flows = Counter()  # by place and "in", "out" or "moved"
        self.seen = {place for place in content if place[0] != "cassette"}  # what the log can know
        self.doubt = 0  # so many pieces the log cannot know of
        self.removed, self.begin, self.end = removed, begin, None  # lines


class Device:
    """Where a device's pieces truly lie, and apart from that what it tells.

    Its scripts move pieces and yield the fields of a line.
    """

    def __init__(self, kiosk, kind, thread):
        self.kiosk, self.rng, self.kind, self.thread = kiosk, kiosk.rng, kind, thread
        self.content = Counter()
        self.channels = []  # places
        for channel in range(1, self.rng.choice(kind.channels or (0,)) + 1):
            place = "channel", channel, self.rng.choice(kind.values)
            self.channels.append(place)
            self.content[place] = self.rng.randrange(30)
        self.is_emptying = False
        self.is_open = False  # of the last piece it is not said what became of it
        self.rejected = {place: self.rng.randrange(3) for place in self.channels}
        for place, count in self.rejected.items():
            self.content["reject", None, place[2]] += count
        for value in kind.values if kind.takes else ():
            self.content["cassette", None, value] = self.rng.choice((0, 0, 5, 40))
        self.period = Period(self.content)
        self.periods = [self.period]
        self.inserted = self.counted = self.rng.randrange(1000)
        self.told = {"enabled": True, "stacker_present": True, "stacker_full": False, "cash": 0,
                     "session_sum": 0, "dispensed_sum": 0, "id_string": "SIM", "state_text": "", **IDLE, **WELL}
        if self.channels:
            self.told["dispenser_registry"] = self.rows()
        self.script = None
        self.hand = None  # the value of the piece in hand
        self.is_value_told = False
        self.moving = []  # the pieces that float until that is said to have ended
        self.is_blind = False  # whether the log may lack rows of its registry
        self.owes = False  # whether it must yet tell what happened
        self.after_note = False

    def ids(self):
        return {"device_id": self.kind.device, "thread_id": self.thread}

    def rows(self):
        return [{"currency": "RUB", "denomination": place[2], "bill_type": self.kind.bill_type,
                 "channel": place[1], "count": self.content[place], "rejected": self.rejected[place],
                 **self.ids()}
                for place in self.channels]

    def registry(self):
        return {"dispenser_registry": self.rows()}

    def put(self, place, count, flow):
        self.content[place] += count
        self.period.flows[place, flow] += abs(count) if flow != "moved" else count
        if not self.kiosk.muted:
            self.period.seen.add(place)

    def lose_sight(self):
        """The piece in hand is in the cassette or not: the log does not tell."""
        self.period.doubt += 1
        self.is_open = True
        if self.hand and self.rng.random() < 0.5:
            self.content["cassette", None, self.hand] += 1
            if self.is_value_told and not self.kiosk.muted:
                self.period.seen.add(("cassette", None, self.hand))
        self.hand = None

    def break_off(self):
        """Leaves what it does, as at a power cut."""
        if self.hand is not None:
            self.lose_sight()
        self.lose_moving()
        if self.is_emptying:  # what its registry does not tell yet may have left
            self.period.doubt = math.inf
        self.script, self.after_note, self.is_emptying = None, False, False

    def lose_moving(self):
        """The last piece that floated did not come to the cassette, or did."""
        if self.moving:
            self.kiosk.tolerated.add("payout_unfinished")
            self.period.doubt += len(self.moving)
            self.content[self.moving[-1]] -= self.rng.randrange(2)
        self.moving = []

    def scatter(self, lines, fields):
        """Tells fields a line before the first of the lines, with it, or a line after."""
        where = self.rng.choice(("before", "with", "after"))
        if where == "with":
            lines[0].update(fields)
        else:
            lines.insert(where == "after", fields)

    # Pieces that are offered.

    def note(self, fault=None, follows=False):
        rng = self.rng
        value = rng.choice(self.kind.values)
        calm = fault or self.kiosk.calm
        end = rng.choices(("stacked", "returned", "rejected", "unsaid"), (70, 10, 10, 0 if calm else 4))[0]
        if fault:
            end = rng.choice(("returned", "rejected")) if fault == "credited_not_taken" else "stacked"
        is_named = calm or follows or rng.random() < 0.95
        phases = {"stacked": ([], ["accepted"], ["stacking"], ["accepted", "stacking"]),
                  "returned": ([], ["accepted"], ["returning"], ["accepted", "returning"]),
                  "rejected": ([], ["accepted"]), "unsaid": ([], ["returning"])}[end]
        phases = ["accepting", *rng.choice(phases)]
        trouble = -1 if calm or end == "unsaid" or rng.random() > 0.15 else rng.randrange(len(phases))
        self.inserted += 1
        self.hand, self.after_note, self.owes = value, True, False
        if end == "rejected" and not fault and not follows and not self.is_open and rng.random() < 0.3:
            phases = []  # before it was known what it is
        self.is_open = end == "unsaid"
        value_at = int(not follows and phases[1:] == ["accepted"] and rng.random() < 0.1)
        for number, phase in enumerate(phases):
            self.is_value_told = is_named and number >= value_at
            yield {"state": phase, **({"current_note": value} if number == value_at and is_named else {})}
            if number == trouble:
                is_named = self.is_value_told
                yield rng.choice(TROUBLES)
                if (yield from self.clear_trouble()):
                    return
                break
        yield from self.end_note(value if is_named else 0, value, end, fault,
                                 is_said=trouble >= 0 or len(phases) < 2)

    def clear_trouble(self):
        """Whether it is never said what became of the piece in hand."""
        if self.kiosk.is_whole and not self.kiosk.muted and self.rng.random() < 0.2:
            yield from self.collect(self.rng.random() < 0.5)
        if self.hand and self.rng.random() < 0.5:
            if self.rng.random() < 0.5:
                yield WELL
            return False
        self.lose_sight()
        yield {**IDLE, **WELL}
        return True

    def end_note(self, named, value, end, fault, is_said):
        rng = self.rng
        self.hand = None
        if end == "unsaid":
            self.period.doubt += 1
            yield IDLE
            return
        lines = [{"state": end, **WELL}]
        total = self.told["session_sum"]
        if end == "stacked":
            channels = [place for place in self.channels if place[2] == named]
            if named:
                is_kept = channels and rng.random() < 0.6
                self.put(rng.choice(channels) if is_kept else ("cassette", None, value), 1, "in")
            else:
                self.content["cassette", None, value] += 1
                self.period.doubt += 1
            if not is_said and rng.random() < 0.2:
                del lines[0]["state"]
        is_followed = not fault and not self.kiosk.muted and rng.random() < 0.15
        if not is_followed:
            lines.append(dict(IDLE))
        if fault == "credit_differs":
            wrong = rng.choice([amount for amount in (value * 2, value + 10, value - 10) if amount > 0])
            self.scatter(lines, {"session_sum": total + wrong})
            if wrong > value and rng.random() < 0.5:  # credited, and then something more
                for line in lines:
                    if "session_sum" in line:
                        line["session_sum"] = total + value
                lines.append({"session_sum": total + wrong})
        elif fault != "not_credited" and (end == "stacked" or fault):
            self.scatter(lines, {"session_sum": total + value})
        if self.channels and self.told["dispenser_registry"] != self.rows():
            self.scatter(lines, self.registry())
        self.owes = True
        for line in lines[:-1]:
            yield line
        self.owes = is_followed  # since the next one says that this one was taken
        yield lines[-1]
        if is_followed:
            yield from self.note(follows=True)

    # What leaves the channels.

    def pick(self, count):
        full = [place for place in self.channels for _ in range(self.content[place])]
        return self.rng.sample(full, min(count, len(full)))

    def batches(self, pieces):
        if self.rng.random() < 0.5 or not pieces:
            return [pieces]
        return [[piece] for piece in pieces]

    def payout(self, fault=None):
        rng = self.rng
        self.after_note = False
        batches = self.batches(self.pick(rng.randint(1, 5)))
        self.owes = True
        yield {"state": "dispensing", "current_channel": batches[0][0][1] if batches[0] else 0}
        if not self.kiosk.calm and rng.random() < 0.15:
            yield rng.choice(TROUBLES)
        for number, batch in enumerate(batches):
            total = self.told["dispensed_sum"]
            for place in batch:
                if rng.random() < 0.1:
                    self.rejected[place] += 1
                    self.put(place, -1, "moved")
                    self.put(("reject", None, place[2]), 1, "moved")
                else:
                    total += place[2]
                    self.put(place, -1, "out")
            is_last = number == len(batches) - 1
            lines = [{}]
            if is_last and fault == "payout_unfinished":
                lines = rng.choice(([{}], [{"state": "jammed"}]))
                self.period.doubt += 1 + sum(len(done) for done in batches)
            elif is_last:
                lines = [{"state": "dispensed", **WELL}]
            if is_last and fault == "payout_differs":
                paid = total - self.told["dispensed_sum"]
                total += rng.choice([wrong for wrong in (-20, -10, 10, 20) if paid + wrong >= 0])
            self.scatter(lines, {"dispensed_sum": total})
            self.scatter(lines, self.registry())
            yield from lines
        self.owes = False
        if fault != "payout_unfinished" or rng.random() < 0.5:
            yield {**IDLE, **WELL}

    def empty(self):
        """Floats some pieces into the cassette, or all of them."""
        rng = self.rng
        self.after_note = False
        begin, end = rng.choice((("floating", "floated"), ("emptying", "emptied")))
        batches = self.batches(self.pick(rng.randint(1, 8) if begin == "floating" else sys.maxsize))
        self.is_emptying = True
        yield {"state": begin}
        if not self.kiosk.calm and rng.random() < 0.1:
            yield rng.choice(TROUBLES)
        for batch in batches:
            for place in batch:
                self.put(place, -1, "moved")
                self.put(("cassette", None, place[2]), 1, "moved")
                self.moving.append(("cassette", None, place[2]))
            if batch is not batches[-1]:
                yield self.registry()
        if self.kiosk.calm or rng.random() < 0.9:
            lines = [{"state": end, **WELL}]
            self.scatter(lines, self.registry())
            self.owes = True
            yield from lines
            self.owes, self.moving, self.is_emptying = False, [], False
        else:
            yield {"state": "jammed", **self.registry()}
            self.lose_moving()
            self.is_emptying = False
        yield {**IDLE, **WELL}

    # What people do to it.

    def fill(self, count=None):
        # After a note, one piece more in a channel would be that note.
        self.put(self.rng.choice(self.channels), count or self.rng.randint(1 + self.after_note, 20), "in")
        yield self.registry()

    def collect(self, with_piece=None):
        """Takes the cassette out and brings it back.

        A piece that was in hand then and is not seen again may lie in the old cassette or in the new one.
        """
        if with_piece is not None:
            self.period.doubt += 1
            if with_piece:
                self.content["cassette", None, self.hand] += 1
        old = self.period
        old.now = Counter(self.content)
        if with_piece:
            self.hand = 0
        for place in [place for place in self.content if place[0] == "cassette"]:
            del self.content[place]
        self.period = Period(self.content)  # of nobody: between two
        self.owes = True
        old.end = len(self.kiosk.lines) + 1
        yield {"stacker_present": False}
        if self.channels and with_piece is None and self.rng.random() < 0.2:
            yield from self.fill()
        self.period = Period(self.content, old.end, len(self.kiosk.lines) + 1)
        if with_piece is not None:
            self.period.doubt += 1
        self.periods.append(self.period)
        self.owes = False
        yield {"stacker_present": True}

    def action(self):
        weights = {self.note: 16 * self.kind.takes, self.collect: self.kind.takes, self.quiet: 1}
        if self.channels:
            weights.update({self.payout: 5, self.fill: 1, self.empty: 2 * self.kind.takes})
        return self.rng.choices(list(weights), weights.values())[0]()

    def quiet(self):
        yield from self.rng.choice(QUIET_TIMES)
