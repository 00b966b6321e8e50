#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Plays a hand, from the cut to the table of games, knowing only what assistive technologies are told.

Draws from the stock, lays what is a set, and discards; presses and toggles the objects of the list "Tavolo".
Ends with 3 when the hand has become too long: a hand need not end.
"""
import collections
import re
import sys
import time

import pyatspi
from gi.repository import Atspi, GLib

DEADLINE = time.monotonic() + 100
heard = []


def events():
    """Lets what has happened arrive; ends the test that lasts too long."""
    if time.monotonic() > DEADLINE:
        sys.exit("by_ear: the hand does not end; heard last: " + "; ".join(heard[-5:]))
    time.sleep(0.01)
    while GLib.MainContext.default().iteration(False):
        pass


def program():
    for application in pyatspi.Registry.getDesktop(0):
        if application and application.childCount and "sollevinodue" in application.name.lower():
            application.set_cache_mask(Atspi.Cache.NONE)  # what is read is what there is
            return application
    return None


def find(parent, role, name):
    """The first child of that role whose name begins like this; a child may go while it is asked."""
    for child in parent or []:
        try:
            if child and child.getRoleName().removeprefix("push ") == role and child.name.startswith(name):
                return child
        except GLib.Error:
            pass
    return None


def act(thing, action):
    actions = thing.queryAction()
    names = [actions.getName(i) for i in range(actions.nActions)]
    if action not in names:
        return False
    actions.doAction(names.index(action))
    return True


class Table:
    """The table as it is told now."""

    def __init__(self):
        application = program()
        for row in (row for window in application or [] for row in window or []):
            ok = find(row, "button", "OK")
            # A message box stands over the table. Its button stays down for a moment, anew with each press.
            if ok and not ok.getState().contains(pyatspi.STATE_PRESSED):
                act(ok, "Press")
        self.list = next((t for w in application or [] for t in [find(w, "list", "Tavolo")] if t), None)

    def status(self):
        return self.list[0].name if self.list and self.list.childCount else ""

    def thing(self, role, name):
        return find(self.list, role, name)

    def hand(self):
        """Names of the cards, without their place in the hand, each with its object."""
        cards = self.thing("list", "La vostra mano") or []
        return [(re.sub(r", \d+ di \d+$", "", card.name), card) for card in cards]


def expect(condition, what):
    if not condition:
        sys.exit("by_ear: " + what + "; heard last: " + "; ".join(heard[-5:]))


def until(test):
    while True:
        events()
        try:
            value = test(Table())
        except (GLib.Error, IndexError):  # an object that has gone meanwhile
            continue
        if value:
            return value


def look(table, cards):
    """What lies on the table is told where it lies, and nothing that is hidden."""
    whole = table.list.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    for name, card in cards:
        box = card.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        expect(whole.x <= box.x and box.x + box.width <= whole.x + whole.width and whole.y < box.y
               and box.y + box.height <= whole.y + whole.height and box.width > 0, name + " lies beside the table")
    places = [card.name for _, card in cards]
    expect(len(set(places)) == len(places), "a card is told twice")
    stock = table.thing("button", "Tallone")
    expect(stock and re.fullmatch(r"Tallone, dorso (blu|rosso)", stock.name), "the stock tells more than its back")


def lay_a_set(cards):
    """Three of a kind, no suit twice."""
    kinds = collections.defaultdict(dict)
    for name, card in cards:
        kind, _, suit = name.rpartition(" di ")
        kinds[kind].setdefault(suit, card)
    chosen = next((list(suits.values())[:3] for suits in kinds.values() if len(suits) > 2), [])
    if not chosen or len(cards) == 3:
        return False
    for n, card in enumerate(chosen, 1):
        expect(act(card, "Toggle"), "a card cannot be selected")
        until(lambda t: sum(c.getState().contains(pyatspi.STATE_SELECTED) for _, c in t.hand()) == n)
    melds = until(lambda t: t.thing("list", "Le vostre combinazioni"))
    expect(act(find(melds, "button", "Calate le carte scelte"), "Press"), "nothing can be laid")
    until(lambda t: len(t.hand()) == len(cards) - 3)
    return True


def main():
    until(lambda table: table.thing("button", "Mazzo, tagliate"))  # the program listens to who wants to hear
    pyatspi.Registry.registerEventListener(
        lambda event: event.source.getRoleName() == "notification" and event.detail1 and heard.append(event.source.name),
        "object:state-changed:showing")
    pyatspi.Registry.registerEventListener(lambda event: heard.append(event.any_data), "object:announcement")
    turns = sets = 0
    while True:
        table = until(lambda t: t if t.thing("list", "Partite") or t.thing("button", "Mazzo, tagliate")
                      or t.status().startswith("Tocca a ") else None)
        try:
            if table.thing("list", "Partite"):
                break
            deck = table.thing("button", "Mazzo, tagliate")
            cards = table.hand()
            if deck:
                act(deck, "Press")
            elif turns > 40:
                sys.exit(3)
            elif table.status().endswith(": pescate"):
                look(table, cards)
                turns += act(table.thing("button", "Tallone"), "Press")
                until(lambda t: not t.status().endswith(": pescate"))
            elif lay_a_set(cards):
                sets += 1
            elif cards and act(cards[0][1], "Press"):
                until(lambda t: len(t.hand()) != len(cards))
        except GLib.Error:  # the table has gone on while it was read
            continue
    rows = until(lambda t: t.status().startswith("Mano finita: ")
                 and [row.name for row in t.thing("list", "Partite") or []])
    print(f"by_ear: {turns} turns, {sets} sets, {len(heard)} times heard something; " + "; ".join(rows))
    expect(turns > 0 and len(rows) == 3, "no table of games")
    expect(any("chiuso" in news for news in heard), "the end of the hand goes unheard")
    expect(sum("Il computer pesca" in news for news in heard) >= turns - 2, "the computer draws unheard")
    expect(sum("Tocca a voi" in news for news in heard) >= turns - 2, "a turn begins unheard")


main()
