"""Prints cases and what Python's standard library makes of them, one a line, fields separated by tabs."""
import base64
import datetime
import decimal
import random

random.seed(1)


def show(*fields):
    print(*fields, sep="\t")


def number_or_none(text):
    try:
        return float(text).hex()
    except ValueError:
        return "none"


def show_dates():
    midnight = datetime.datetime(1, 1, 1)
    for _ in range(2000):
        moment = midnight + datetime.timedelta(days=random.randrange(3652059), microseconds=random.randrange(86400 * 10**6))
        ticks = (moment - midnight) // datetime.timedelta(microseconds=1) * 10
        show("date", moment.isoformat(), ticks, moment.timetuple().tm_yday, moment.isocalendar()[1])


def show_zones():
    for _ in range(500):
        offset = datetime.timezone(datetime.timedelta(minutes=random.randrange(-840, 841)))
        moment = datetime.datetime(2000, 1, 1, tzinfo=offset) + datetime.timedelta(seconds=random.randrange(10**9))
        since = moment - datetime.datetime(1, 1, 1, tzinfo=datetime.timezone.utc)
        show("zone", moment.isoformat(), since // datetime.timedelta(microseconds=1) * 10)


def show_binaries():
    for length in range(300):
        data = random.randbytes(length)
        show("binary", data.hex().upper(), base64.b64encode(data).decode())


def show_numbers():
    for _ in range(20000):
        text = "".join(random.choices("+-.e0123456789", weights=[2, 2, 4, 4] + [3] * 10, k=random.randrange(1, 9)))
        show("number", text, number_or_none(text))


def show_decimals():
    for _ in range(5000):
        value = float(f"{random.randrange(10**random.randrange(1, 16))}e{random.randrange(-307, 290)}")
        plain = format(decimal.Decimal(repr(value)), "f")
        show("decimal", value.hex(), (plain.rstrip("0").rstrip(".") if "." in plain else plain))


show_dates()
show_zones()
show_binaries()
show_numbers()
show_decimals()
