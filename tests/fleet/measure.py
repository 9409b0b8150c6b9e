# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT
"""How many states a second workers take, beside a loop in C that does the least, and what they need."""

import contextlib
import os
import signal
import subprocess
import time

from fleet.world import Broker, Failed, Fleet, Worker, hold, part_of, start, wait_until

KIOSKS = 5000


class Loop:
    """Stands where a worker does, and only parses each state, or answers it with as many bytes."""

    def __init__(self, program, mode, fleet):
        self.process = start(program, mode, fleet.broker.port, f"{fleet.root}/+/state",
                             stdout=subprocess.PIPE, text=True)
        hold(self.process.stdout.readline() == "ready\n", "the loop does not subscribe")

    of_process = Worker.of_process
    stop = Worker.kill


def compiled(world):
    program = os.path.join(world.folder, "loop")
    source = os.path.join(os.path.dirname(os.path.abspath(__file__)), "loop.c")
    subprocess.run(["cc", "-O2", "-o", program, source, "-lmosquitto", "-lcjson"], check=True)
    return program


@contextlib.contextmanager
def held(workers, share):
    """So much of a core for each of them."""
    if not os.access("/sys/fs/cgroup/cpu/cpu.cfs_quota_us", os.F_OK) \
            and not os.access("/sys/fs/cgroup/cpu", os.W_OK):
        raise Failed("there is no /sys/fs/cgroup/cpu to hold workers back with")
    groups = [f"/sys/fs/cgroup/cpu/check-fleet-{worker.process.pid}" for worker in workers]
    try:
        for worker, group in zip(workers, groups):
            os.mkdir(group)
            for file, value in (("cpu.cfs_period_us", 20000), ("cpu.cfs_quota_us", int(20000 * share)),
                                ("cgroup.procs", worker.process.pid)):
                with open(os.path.join(group, file), "w") as text:
                    text.write(str(value))
        yield
    finally:
        for worker, group in zip(workers, groups):
            worker.process.kill()
            worker.process.wait()
            os.rmdir(group)


def drain(program, fleet, consumers, count):
    """Lets states wait for those that are stopped, then times how long these take.

    Gives states a second, and microseconds of a processor for a state: of the consumers, of the broker."""
    lines = []
    for _ in range(2):
        for kiosk in (f"k{number}" for number in range(KIOSKS)):
            lines.append(f"{fleet.topic(kiosk, 'state')} {fleet.state()}")
    ends = [next(name for name in map("end{}".format, range(99))
                 if part_of(name, len(consumers)) == part) for part in range(1, len(consumers) + 1)]
    fleet.client.subscribe([(fleet.topic(name, "summary"), 1) for name in ends])

    def pass_on(count):
        fleet.summaries.clear()
        for consumer in consumers:
            consumer.process.send_signal(signal.SIGSTOP)
        subprocess.run([program, "publish", str(fleet.broker.port), str(count)], check=True,
                       input="\n".join(lines), text=True)
        fleet.publish_all(ends)
        before = [(each, each.of_process("time")) for each in [*consumers, fleet.broker]]
        begin = time.monotonic()
        for consumer in consumers:
            consumer.process.send_signal(signal.SIGCONT)
        wait_until("all states are taken", lambda: fleet.summaries.keys() >= set(ends), 300, 0.005)
        seconds = time.monotonic() - begin
        time.sleep(0.3)
        used = [each.of_process("time") - spent for each, spent in before]
        return count / seconds, 1e6 * sum(used[:-1]) / count, 1e6 * used[-1] / count
    pass_on(KIOSKS)  # the first states of the kiosks
    return pass_on(count)


def latency(world):
    fleet = Fleet(world, Broker(world))
    worker = Worker(fleet)
    ages, sent, rate = [], {}, 2500
    fleet.client.on_message = lambda _c, _d, message: ages.append(
        time.monotonic() - sent.pop(message.topic.split("/")[1], time.monotonic()))
    begin = time.monotonic()
    for number in range(rate * 10):
        kiosk = f"k{number % 10000}"
        sent[kiosk] = time.monotonic()
        fleet.publish(kiosk)
        ahead = begin + number / rate - time.monotonic()
        if ahead > 0.005:
            time.sleep(ahead)
    time.sleep(1)
    ages.sort()
    print(f"| latency at {rate} a second | {1000 * ages[len(ages) // 2]:.0f} ms median, "
          f"{1000 * ages[len(ages) * 99 // 100]:.0f} ms for 99 % |")
    print(f"| memory of a worker for 10,000 kiosks | {worker.of_process('VmRSS'):.0f} MiB |", flush=True)
    worker.stop()


def measure(world):
    program = compiled(world)
    Broker.of_process = Worker.of_process
    print("| | |\n|---|---|")

    def told(what, result, more=""):
        print(f"| {what} | {result[0]:,.0f} states a second, {result[1]:.1f} us of a processor a state, "
              f"the broker {result[2]:.1f} us{more} |", flush=True)
        return result
    best = {}
    for _ in range(3):  # by turns: what else the machine does is the same for all
        for mode in ("parse", "answer", "worker"):
            fleet = Fleet(world, Broker(world), hears=False)
            consumer = Worker(fleet) if mode == "worker" else Loop(program, mode, fleet)
            result = drain(program, fleet, [consumer], 60000)
            best[mode] = max(best.get(mode, result), result)
            consumer.stop()
            fleet.broker.stop()
    told("a loop that parses", best["parse"])
    told("a loop that parses and publishes", best["answer"])
    speed, cost = best["worker"][0] / best["answer"][0], best["answer"][1] / best["worker"][1]
    told("one worker", best["worker"], f"; {speed:.2f} of the loop's speed, {cost:.2f} by processor")
    missed = [] if min(speed, cost) >= 0.7 else [f"one worker: {speed:.2f}, {cost:.2f} by processor"]
    for by_topic, goal in ((True, 3.5), (False, 2.8)):
        rates = []
        for parts in (1, 4):
            fleet = Fleet(world, Broker(world), parts=parts if by_topic else 0, hears=False)
            workers = fleet.workers(*([f"--partition={part}/{parts}"] for part in range(1, parts + 1)))
            with held(workers, 0.2):
                result = drain(program, fleet, workers, 10000 * parts)
            rates.append(result[0])
            times = f"; {rates[-1] / rates[0]:.2f} times one" if parts > 1 else ""
            told(f"{parts} held to a fifth of a core, "
                 + ("a level of the topic for the part" if by_topic else "the hash alone"), result, times)
            fleet.broker.stop()
        if rates[1] / rates[0] < goal:
            missed.append(f"four parts: {rates[1] / rates[0]:.2f} times one, not {goal}")
    latency(world)
    hold(not missed, "missed:", "; ".join(missed))
