# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT
"""Kiosks publish at random while workers, the broker and the database are killed at random."""

import contextlib
import itertools
import os
import random
import signal
import sqlite3
import threading
import time

from fleet.world import Broker, Fleet, Postgres, hold, part_of, wait_until

PERIODS = "SELECT kiosk, condition, began, ended FROM conditions ORDER BY kiosk, began"


class Sqlite:
    """It cannot be killed; it is away while somebody else holds it."""

    def __init__(self, world):
        self.place = os.path.join(world.new_folder(), "history.sqlite")

    def stop(self):
        self.holder = sqlite3.connect(self.place, isolation_level=None, check_same_thread=False)
        with contextlib.suppress(sqlite3.OperationalError):
            self.holder.execute("BEGIN EXCLUSIVE")

    def start(self):
        self.holder.close()

    def rows(self, query):
        with contextlib.closing(sqlite3.connect(self.place)) as database:
            return [["" if value is None else str(value) for value in row]
                    for row in database.execute(query)]


def periods(database, kiosks):
    """Of each kiosk in order: the condition, from when, and to when or nothing."""
    found = {kiosk: [] for kiosk in kiosks}
    for kiosk, condition, began, ended in database.rows(PERIODS):
        if kiosk in found:
            found[kiosk].append((condition, int(began), int(ended) if ended else None))
    return found


def away(thing, seconds, *how):
    thing.stop(*how)
    time.sleep(seconds)
    thing.start()


class Deaths(threading.Thread):
    """One after another; a database may be away while others die."""

    def __init__(self, fleet, workers, databases):
        super().__init__()
        self.fleet, self.workers, self.databases = fleet, workers, list(databases)
        self.dice = random.Random(fleet.world.seed + 1)
        self.ended = threading.Event()
        self.log, self.failure, self.waiting = [], None, []

    def run(self):
        try:
            while not self.ended.wait(self.dice.uniform(0, 1)):
                self.one()
            for thread in self.waiting:
                thread.join()
        except Exception as failure:  # told by the one who waits
            self.failure = failure

    def one(self):
        what = self.dice.choice(["kill", "kill", "stop", "stop", "end", "broker", "broker -9",
                                 "database", "database"])
        seconds = self.dice.uniform(0, min(self.fleet.silent, 6)) * self.dice.choice([0.3, 0.8])
        worker = self.dice.choice(self.workers)
        of_worker = f" {worker.name}" if what in ("kill", "stop", "end") else ""
        self.log.append(f"{what}{of_worker} {seconds:.1f}")
        if what == "database":
            if self.databases:
                database = self.databases.pop(self.dice.randrange(len(self.databases)))
                self.waiting.append(threading.Thread(target=self.without, args=(database, seconds)))
                self.waiting[-1].start()
        elif what == "stop":  # now and then for longer than a kiosk may be silent
            worker.signal(signal.SIGSTOP)
            time.sleep(self.fleet.silent * 1.2 if self.dice.random() < 0.2 else seconds)
            worker.signal(signal.SIGCONT)
        elif of_worker:
            worker.kill() if what == "kill" else worker.stop()
            time.sleep(seconds)
            worker.start(wait=False)
        else:
            away(self.fleet.broker, seconds / 2, signal.SIGKILL if "-9" in what else signal.SIGTERM)

    def without(self, database, seconds):
        away(database, seconds)
        self.databases.append(database)


class Play:
    """What is published, and what the history is to be of it."""

    def __init__(self, world):
        self.dice = random.Random(world.seed)
        self.count, silent = (3000, 3) if world.quick else (200000, 15)
        self.fleet = Fleet(world, Broker(world), silent)
        self.databases = [Sqlite(world)] + ([Postgres(world)] if Postgres.is_here() else [])
        hold(world.quick or len(self.databases) == 2, "PostgreSQL is not installed")
        first, last = self.databases[-1].place, self.databases[0].place
        self.workers = self.fleet.workers(*(
            [f"--partition={part}", "--history", place]
            for part, place in (("1/2", first), ("1/2", first), ("2/2", last))))
        self.kiosks = [f"k{number}" for number in range(150 if world.quick else 5000)]
        bodies = dict(zip(self.kiosks, itertools.cycle(self.fleet.bodies)))
        for kiosk, body in bodies.items():
            last = self.fleet.publish(kiosk, self.fleet.state(body))
        self.fleet.settle(last)
        self.fleet.check("before")
        self.newest = bodies
        self.conditions = {body: self.fleet.told(kiosk)["condition"] for kiosk, body in bodies.items()}
        self.published = {kiosk: [self.conditions[body]] for kiosk, body in bodies.items()}

    def publish(self, kiosk, body=None):
        self.newest[kiosk] = body or self.dice.choice(self.fleet.bodies)
        self.published[kiosk].append(self.conditions[self.newest[kiosk]])
        return self.fleet.publish(kiosk, self.fleet.state(self.newest[kiosk]))

    def publish_all(self, kiosks, again=False):
        for kiosk in kiosks:
            last = self.publish(kiosk, self.newest[kiosk] if again else None)
        self.fleet.settle(last)

    def lose_a_standby(self):
        """One of two dies, the other lives: every change is remembered once."""
        doomed = self.dice.choice(self.workers[:2])
        for turn in range(12):
            if turn == 4:
                doomed.kill()
            if turn == 9:
                doomed.start(wait=False)
            self.publish_all(self.kiosks[:500])
            time.sleep(0.2)
        wanted = {kiosk: [condition for condition, _ in itertools.groupby(self.published[kiosk])]
                  for kiosk in self.kiosks[:500] if part_of(kiosk, 2) == 1}

        def missed():
            return [(kiosk, [span[0] for span in spans], wanted[kiosk]) for kiosk, spans
                    in periods(self.databases[-1], wanted).items()
                    if [span[0] for span in spans] != wanted[kiosk] and kiosk not in self.fleet.accused]
        wait_until(lambda: f"every change is there once; not of {len(missed())}, {missed()[:1]}",
                   lambda: not missed(), 30, 0.5)
        print(f"a standby killed: {sum(map(len, wanted.values()))} changes, each once", flush=True)

    def lose_all(self):
        silenced = {kiosk: self.dice.randrange(self.count)
                    for kiosk in self.dice.sample(self.kiosks, len(self.kiosks) // 30)}
        deaths = Deaths(self.fleet, self.workers, self.databases)
        deaths.start()
        begin = time.monotonic()
        for number in range(self.count):
            kiosk = self.dice.choice(self.kiosks)
            if number < silenced.get(kiosk, self.count):
                last = self.publish(kiosk)
            if number % (self.count // 100) == 0:
                time.sleep(0.1)
                # The client numbers 65,535 messages that wait; more than these are not sent.
                wait_until("the states are sent", lambda: len(self.fleet.pending) < 50000, 120)
        self.fleet.settle(last, 120)
        deaths.ended.set()
        deaths.join()
        print(f"{self.count} states of {len(self.kiosks)} kiosks in {time.monotonic() - begin:.0f} s, "
              f"{len(deaths.log)} deaths: {', '.join(deaths.log)}", flush=True)
        if deaths.failure:
            raise deaths.failure
        awake = [kiosk for kiosk in self.kiosks if kiosk not in silenced]

        def still_heard():
            self.publish_all(awake)
            return [kiosk for kiosk in silenced if self.fleet.told(kiosk).get("condition") != "silent"]
        wait_until(lambda: f"they are silent: {[(kiosk, self.fleet.told(kiosk)) for kiosk in still_heard()[:3]]}",
                   lambda: not still_heard(), 3 * self.fleet.silent + 60, self.fleet.silent / 6)
        self.fleet.check("after all deaths", silenced, self.fleet.silent)
        print(f"{len(self.kiosks)} summaries as they should be, {len(silenced)} silent", flush=True)
        self.present = {kiosk: "silent" if kiosk in silenced else self.conditions[self.newest[kiosk]]
                        for kiosk in self.kiosks}

    def check_periods(self, part, database):
        """Whatever died, the periods of a kiosk follow each other, and the last one is the present."""
        own = [kiosk for kiosk in self.kiosks if part_of(kiosk, 2) == part]

        def other_than_present():
            self.publish_all([kiosk for kiosk in own if self.present[kiosk] != "silent"], again=True)
            return [(kiosk, self.present[kiosk], spans[-3:]) for kiosk, spans in
                    periods(database, own).items()
                    if not spans or spans[-1][2] is not None or spans[-1][0] != self.present[kiosk]]
        wait_until(lambda: f"the last period is the present: {other_than_present()[:2]}",
                   lambda: not other_than_present(), 60, 1)
        found = periods(database, own)
        for kiosk, spans in found.items():
            for one, two in itertools.pairwise(spans):
                hold(one[0] != two[0] and one[2] is not None and one[1] <= one[2] <= two[1],
                     kiosk, "overlaps or repeats:", one, two)
            known = {*self.published[kiosk], *(["silent"] if kiosk in self.fleet.accused else [])}
            hold({span[0] for span in spans} <= known, kiosk, "was never so:", spans, known)
        print(f"part {part}: {sum(map(len, found.values()))} periods in the history", flush=True)


def chaos(world):
    play = Play(world)
    play.lose_a_standby()
    play.lose_all()
    play.check_periods(1, play.databases[-1])
    play.check_periods(2, play.databases[0])
