#!/usr/bin/env python3
"""The sweep: every call of a session fails, or is the last; see README.md."""

import argparse
import os
import pathlib
import random
import shutil
import subprocess
import sys
import tempfile

from welt import AUFRUFE, HIER, Welt, aufrufe_zaehlen, filter_fuer, getroffen, jetzt

FEHLER = ("ENOSPC", "EIO", "EACCES", "EROFS", "EINTR")
AUSWEICHEN = "liegen deshalb vorerst im Ordner"  # told once, after a save that succeeded
LADEFEHLER = ("Fehler beim Einlesen", "konnte nicht gefunden werden", "konnte nicht gelesen werden")
KOPF = ['antworten "OK|Nein|Abbrechen"', "warte frmMain", "zelle tblPPunkte 1 1"]


TEILE = ("echt", "riesig", "kurze_aufrufe", "laden", "wiederherstellen", "arbeit", "ausweichen", "phrasen", "zufaellig")


def speichern_mit(punkte):
    """Lines of a script that type points and save."""
    return [f'text txtEingabe "{punkte}"', "aktion mnuFileSave"]


class Zaehlung:
    """Points tried, and what went wrong at them."""

    def __init__(self):
        self.teile = {}
        self.verluste = []
        self.beginn = jetzt()

    def punkt(self, teil, fehler):
        zahl = self.teile.setdefault(teil, [0, 0])
        zahl[0] += 1
        if fehler:
            zahl[1] += 1
            self.verluste.append(f"{teil}: {fehler}")
            print(f"VERLOREN {teil}: {fehler}", flush=True)

    def schluss(self):
        for teil, (versucht, verloren) in self.teile.items():
            print(f"{teil:52} {versucht:6} Punkte, verloren {verloren}")
        versucht = sum(zahl[0] for zahl in self.teile.values())
        print(f"Durchgang: {versucht} Punkte versucht, {len(self.verluste)} verloren, {jetzt() - self.beginn:.0f} s")
        return 1 if self.verluste or not versucht else 0


class Durchgang:
    def __init__(self, welt, kurz):
        self.welt = welt
        self.kurz = kurz
        self.zahl = Zaehlung()
        self.voll = (HIER.parent / "data" / "klein.txt").read_bytes()
        # With bare line feeds the file is shorter than what is saved: the save must reserve room.
        self.alt = self.voll.replace(b"\r\n", b"\n")
        self.phrasen_alt = (b"[Beurteilungsvorlagen f\xfcr Tafelquell 3.0]\r\n[Deutsch]\r\n" +
                            120 * b"+ *****s Texte sind gut aufgebaut und lebendig erz\xe4hlt.\r\n")
        self.phrasen_neu = self.phrasen_alt + b"o Neu.\r\n"
        self.neu = self.stand("36")
        self.anders = self.stand("12,5")

    def stand(self, punkte, buch=None):
        """The grade book as the program writes it with these points, in a run without a fault."""
        self.welt.frisch(buch or self.alt)
        ausgang = self.welt.lauf([*KOPF, *speichern_mit(punkte), "aktion mnuFileExit"])
        inhalt = self.welt.inhalt(self.welt.buch)
        assert ausgang == "ende" and f"\t{punkte}\t".encode() in inhalt, (ausgang, self.welt.meldungen())
        return inhalt

    # What must hold after a run.

    def zwischen(self, von, bis):
        """Whether the session reported success between two marks: reached the second without a box."""
        zeilen = self.welt.meldungen()
        if f"MELDUNG {von}" not in zeilen or f"MELDUNG {bis}" not in zeilen:
            return False
        teil = zeilen[zeilen.index(f"MELDUNG {von}"):zeilen.index(f"MELDUNG {bis}")]
        return not any(zeile.startswith(("KASTEN", "FEHLER")) and AUSWEICHEN not in zeile for zeile in teil)

    def geladen(self):
        """The grade book came up under its name, and nothing was said about its load."""
        zeilen = self.welt.meldungen()
        if any(zeile.startswith("KASTEN") and any(text in zeile for text in LADEFEHLER) for zeile in zeilen):
            return False
        return any(z.startswith("frmMain.windowTitle") and z.endswith("buch.txt") for z in zeilen)

    def falscher_erfolg(self):
        geladen = self.geladen()
        if geladen and self.zwischen("speichern", "gespeichert") and self.welt.inhalt(self.welt.buch) != self.neu:
            return "falscher Erfolg beim Speichern"
        if geladen and self.zwischen("speichern unter", "gespeichert unter") and \
                self.welt.inhalt(self.welt.neu) != self.anders:
            return "falscher Erfolg beim Speichern unter"
        return ""

    def naechster_start(self, erlaubt):
        """The next start, on a sound system, has one of these contents in the grade book and offers nothing more."""
        welt = self.welt
        if not welt.offene_rettungen() and welt.inhalt(welt.buch) in erlaubt:
            return ""  # nothing to recover, and the file is whole: the start cannot change that
        welt.profil()
        ausgang = welt.lauf("neustart.txt")
        if ausgang != "ende":
            return f"nächster Start: {ausgang} {welt.meldungen()}"
        if welt.inhalt(welt.buch) not in erlaubt:
            return f"Notenbuch weder alt noch neu: {welt.inhalt(welt.buch)!r:.80} {welt.meldungen()}"
        if not self.geladen():
            return "nächster Start lädt das Notenbuch nicht"
        return f"Rettungskopie bleibt: {welt.meldungen()}" if welt.offene_rettungen() else ""

    def nach_arbeit(self, ausgang, toedlich):
        # A book that could not be loaded has no cell to type in, and the session ends there.
        nicht_geladen = ausgang == "falsch 3" and not self.geladen()
        if ausgang not in ("ende", "getoetet" if toedlich else "ende") and not nicht_geladen:
            return f"Lauf endete mit: {ausgang} {self.welt.meldungen()[-3:]}"
        fehler = self.falscher_erfolg()
        erlaubt = (self.alt, self.neu) if self.geladen() or toedlich else (self.alt,)
        fehler = fehler or self.naechster_start(erlaubt)
        if not fehler and self.geladen() and self.welt.inhalt(self.welt.neu) not in (None, b"", self.anders, self.neu):
            fehler = "die andere Datei ist weder leer noch ganz"
        return fehler

    # The points.

    def punkte(self, zahl, stichprobe):
        """(call, number, what) for all calls; in the short form a spread of them."""
        arten = [f"error={f}:when={{}}{d}" for f in FEHLER for d in ("", "+")] + ["signal=KILL:when={}"]
        alle = [(aufruf, n, art) for aufruf, anzahl in zahl.items() for n in range(1, anzahl + 1) for art in arten]
        if not self.kurz:
            return alle
        wichtig = ("pwrite64", "fsync", "ftruncate", "fallocate", "rename", "unlink")
        tode = [p for p in alle if p[0] in wichtig and p[2].startswith("signal")]
        zufall = random.Random(1)
        return zufall.sample(tode, min(stichprobe, len(tode))) + zufall.sample(alle, min(stichprobe, len(alle)))

    def stoeren(self, teil, vorlage, herrichten, pruefen, zusatz=None, stichprobe=50):
        herrichten()
        zahl = aufrufe_zaehlen(self.welt, vorlage, zusatz)
        print(f"{teil}: {sum(zahl.values())} Aufrufe: {zahl}", flush=True)
        for aufruf, nummer, art in self.punkte(zahl, stichprobe):
            herrichten()
            self.welt.spur.unlink(missing_ok=True)
            was = f"{aufruf}:{art.format(nummer)}"
            ausgang = self.welt.lauf(vorlage, strace=[*filter_fuer(self.welt), "-e", f"trace={AUFRUFE}", "-e",
                                                      f"inject={was}"], zusatz=zusatz)
            fehler = pruefen(ausgang, art.startswith("signal"))
            self.zahl.punkt(teil + (", getötet" if art.startswith("signal") else ", Fehler"), fehler and f"{was}: {fehler}")

    def arbeit(self):
        self.stoeren("Laden, Speichern, Speichern unter", "arbeit.txt", lambda: self.welt.frisch(self.alt),
                     self.nach_arbeit)

    def ohne_zustandsordner(self):
        """An environment whose state folder cannot be: a file stands in its place."""
        im_weg = self.welt.ordner / "im_weg"
        im_weg.write_bytes(b"")
        return {"XDG_STATE_HOME": str(im_weg)}

    def ausweichen(self):
        """The same where the state folder cannot be: rescue copies lie in the second folder."""
        zusatz = self.ohne_zustandsordner()
        self.welt.frisch(self.alt)
        ausgang = self.welt.lauf("arbeit.txt", zusatz=zusatz)
        hinweise = [z for z in self.welt.meldungen() if AUSWEICHEN in z]
        assert ausgang == "ende" and len(hinweise) == 1 and self.welt.inhalt(self.welt.buch) == self.neu, \
            (ausgang, self.welt.meldungen())
        self.stoeren("Speichern ohne Zustandsordner", "arbeit.txt", lambda: self.welt.frisch(self.alt),
                     self.nach_arbeit, zusatz, stichprobe=12)

    def phrasen(self):
        """The phrase file: load, add a phrase, save, end."""
        welt = self.welt

        def bewahrt():
            return any(p.read_bytes() == self.phrasen_alt for p in welt.zustand.glob("*phrasen.txt"))

        def ganz():
            return welt.inhalt(welt.phrasen) in (self.phrasen_alt, self.phrasen_neu)

        def pruefen(ausgang, toedlich):
            unvollstaendig = any("Formulierungen-Datei" in z for z in welt.meldungen())
            # A store that could not be loaded has no last row to type in, and the session ends there.
            erwartet = ("ende", "getoetet" if toedlich else "ende", "falsch 3" if unvollstaendig else "ende")
            if ausgang not in erwartet:
                return f"Lauf endete mit: {ausgang} {welt.meldungen()[-3:]}"
            if not unvollstaendig and self.zwischen("speichern", "gespeichert") and \
                    welt.inhalt(welt.phrasen) != self.phrasen_neu:
                return "falscher Erfolg"
            if not welt.offene_rettungen() and (ganz() or unvollstaendig and bewahrt()):
                return ""
            welt.profil()
            ausgang = welt.lauf("neustart.txt")
            if ausgang != "ende" or welt.offene_rettungen():
                return f"nächster Start: {ausgang} {welt.meldungen()}"
            if ganz() or unvollstaendig and bewahrt():
                return ""
            return f"Formulierungen weder alt noch neu: {welt.inhalt(welt.phrasen)!r:.80} {welt.meldungen()}"

        welt.frisch(self.alt, phrasen=self.phrasen_alt)
        ausgang = welt.lauf("phrasen.txt")
        assert ausgang == "ende" and welt.inhalt(welt.phrasen) == self.phrasen_neu, (ausgang, welt.meldungen())
        self.stoeren("Formulierungen laden und speichern", "phrasen.txt",
                     lambda: welt.frisch(self.alt, phrasen=self.phrasen_alt), pruefen, stichprobe=12)

    def riesig(self):
        """Lines of 300 MB for every reader; only in the long form, since they take gigabytes."""
        klassen = {"core": ("LadenScheitert:Sehr_lange_Zeile_laedt_und_der_Bericht_bleibt_kurz",
                            "SchlechteFremdeDatenbank:EineSehrLangeZeileGehtDurch",
                            "SchlechteParameterdatei:EineSehrLangeZeileGehtDurch"),
                   "assessments": ("FormulierungenSchlecht:AVeryLongLineIsReadAndItsReportStaysShort",)}
        for ordner, tests in () if self.kurz else klassen.items():
            programm = self.welt.bau / "tests" / ordner / f"tafelquell_tests_{ordner}"
            if not programm.exists():
                print(f"ausgelassen: nicht gebaut: {programm}")
                continue
            for test in tests:
                fertig = subprocess.run([programm, test], env=os.environ | {"TAFELQUELL_LANG": "1"}, timeout=600,
                                        capture_output=True, text=True)
                self.zahl.punkt("Zeilen von 300 MB", fertig.stdout[-500:] if fertig.returncode else "")

    def laden(self):
        def pruefen(ausgang, toedlich):
            if ausgang not in ("ende", "getoetet" if toedlich else "ende"):
                return f"Lauf endete mit: {ausgang} {self.welt.meldungen()[-3:]}"
            if self.geladen() and self.zwischen("speichern", "gespeichert") and \
                    self.welt.inhalt(self.welt.buch) != self.voll:
                return "falscher Erfolg"
            return self.naechster_start((self.alt, self.voll) if self.geladen() or toedlich else (self.alt,))

        self.stoeren("Laden und gleich Speichern", "laden.txt", lambda: self.welt.frisch(self.alt), pruefen)

    def kurze_aufrufe(self):
        """Reads and writes that take only a part, by a library in front of the C library."""
        vorlader = [self.welt.bau / "tests/sweep/kurz/libtafelquell_kurz.so"]
        for dauernd in ("", "1"):
            for stelle in range(1, 60):
                self.welt.frisch(self.alt)
                zaehler = self.welt.ordner / "getroffen"
                zaehler.unlink(missing_ok=True)
                ausgang = self.welt.lauf("arbeit.txt", vorlader=vorlader, zusatz={
                    "KURZ_PFAD": str(self.welt.ordner / "buecher") + ":" + str(self.welt.zustand),
                    "KURZ_STELLE": str(stelle), "KURZ_DAUERND": dauernd, "KURZ_ZEICHEN": str(zaehler)})
                if not zaehler.exists():
                    break
                fehler = self.nach_arbeit(ausgang, False)
                if not fehler and (self.welt.inhalt(self.welt.buch), self.welt.inhalt(self.welt.neu)) != (self.neu, self.anders):
                    fehler = "nicht gespeichert"
                self.zahl.punkt("kurze Lese- und Schreibaufrufe", fehler and f"Aufruf {stelle}: {fehler}")
                if self.kurz and stelle >= 8:
                    break

    def abgebrochen(self):
        """A state folder as a kill leaves it between truncating and writing."""
        vorlage = self.welt.ordner / "abgebrochen"
        if not vorlage.exists():
            self.welt.frisch(self.alt)
            ausgang = self.welt.lauf("arbeit.txt", strace=[*filter_fuer(self.welt), "-e", f"trace={AUFRUFE}", "-e",
                                                           "inject=pwrite64:signal=KILL:when=3"])
            assert ausgang == "getoetet" and self.welt.inhalt(self.welt.buch) == b"", (ausgang, self.welt.meldungen())
            shutil.copytree(self.welt.zustand, vorlage)
        return vorlage

    def wiederherstellen(self):
        zustand = self.abgebrochen()
        halb = self.neu[:700]

        def pruefen(ausgang, toedlich):
            if ausgang not in ("ende", "getoetet" if toedlich else "ende"):
                return f"Lauf endete mit: {ausgang} {self.welt.meldungen()[-3:]}"
            return self.naechster_start((self.neu,))

        self.stoeren("Wiederherstellen beim Start", "neustart.txt",
                     lambda: self.welt.frisch(halb, zustand=zustand), pruefen)

    def zufaellig(self):
        """Kills at random moments of a session of many saves; each writes other points."""
        werte = [str(punkte) for punkte in range(1, 11)]
        # Three megabytes: writing them takes long enough to be hit.
        alt = self.alt.replace(b"Unterricht.\n", b"Unterricht.\n" + 3000 * (1000 * b"x" + b"\n"))
        staende = [alt] + [self.stand(punkte, alt) for punkte in werte]
        skript = list(KOPF)
        for punkte in werte:
            skript += [*speichern_mit(punkte), f'melde "{punkte}"']
        self.welt.frisch(alt)
        beginn = jetzt()
        assert self.welt.lauf([*skript, "aktion mnuFileExit"]) == "ende", self.welt.meldungen()
        dauer = jetzt() - beginn
        zufall = random.Random(2003)
        for nummer in range(30 if self.kurz else 1000):
            self.welt.frisch(alt)
            # Every fourth time the rescue copies lie in the second folder.
            prozess = self.welt.starten(skript, zusatz=self.ohne_zustandsordner() if nummer % 4 == 3 else None)
            pause = zufall.uniform(0.02, dauer)
            try:
                prozess.wait(pause)
            except subprocess.TimeoutExpired:
                pass
            prozess.kill()
            prozess.wait()
            gemeldet = [z.removeprefix("MELDUNG ") for z in self.welt.meldungen() if z.startswith("MELDUNG ")]
            mindestens = 1 + werte.index(gemeldet[-1]) if gemeldet else 0
            fehler = self.naechster_start(tuple(staende[mindestens:mindestens + 2]))
            self.zahl.punkt("getötet in zufälligen Augenblicken", fehler and f"nach {pause:.3f} s: {fehler}")

    # Genuine cases: a full and a read-only file system, an immutable file.

    def eingehaengt(self, schalter):
        ordner = self.welt.ordner / "datentraeger"
        ordner.mkdir(exist_ok=True)
        fertig = subprocess.run(["mount", "-t", "tmpfs", "-o", schalter, "tafelquell-sweep", str(ordner)], capture_output=True)
        return ordner if fertig.returncode == 0 else None

    def echt(self):
        faelle = {"voller Datenträger": self.voll_laufen, "schreibgeschützter Datenträger": self.nur_lesen,
                  "voller Zustandsordner": self.zustand_voll,
                  "voller Zustandsordner, zweiter Ordner": self.zustand_voll_zweiter}
        for name, fall in faelle.items():
            ordner = self.eingehaengt("size=256k")
            if not ordner:
                print(f"ausgelassen: {name}: Einhängen ist hier nicht erlaubt")
                continue
            try:
                self.zahl.punkt(f"echt: {name}", fall(ordner))
            finally:
                subprocess.run(["umount", "-l", str(ordner)], check=True)
                self.welt.buch = self.welt.ordner / "buecher" / "buch.txt"

    def verweigert(self, alt, ursache):
        """The save was refused with this cause, and the old content stands."""
        text = "\n".join(z for z in self.welt.meldungen() if z.startswith("KASTEN"))
        if ursache not in text:
            return f"Ursache fehlt: {self.welt.meldungen()}"
        return "" if self.welt.inhalt(self.welt.buch) == alt else "alter Inhalt nicht mehr da"

    SPEICHERN = [*KOPF, *speichern_mit("36"), "aktion mnuFileExit"]

    @staticmethod
    def fuellen(ordner):
        try:
            with open(ordner / "ballast", "wb") as ballast:
                while True:
                    ballast.write(bytes(4096))
                    ballast.flush()
        except OSError:
            pass

    def voll_laufen(self, ordner):
        # An assessment of many short lines needs more blocks with the line ends that are saved.
        alt = self.alt.replace(b"Unterricht.\n", b"Unterricht.\n" + 3000 * b"x\n")
        self.welt.frisch(alt, buch=ordner / "buch.txt")
        self.fuellen(ordner)
        ausgang = self.welt.lauf(self.SPEICHERN)
        return f"{ausgang}" if ausgang != "ende" else self.verweigert(alt, "der Datenträger ist voll")

    def nur_lesen(self, ordner):
        self.welt.frisch(self.alt, buch=ordner / "buch.txt")
        subprocess.run(["mount", "-o", "remount,ro", str(ordner)], check=True)
        ausgang = self.welt.lauf(self.SPEICHERN)
        return f"{ausgang}" if ausgang != "ende" else self.verweigert(self.alt, "schreibgeschützt")

    def zustand_voll(self, ordner):
        self.welt.frisch(self.alt)
        self.fuellen(ordner)
        ausgang = self.welt.lauf(self.SPEICHERN, zusatz={"XDG_STATE_HOME": str(ordner), "XDG_RUNTIME_DIR": ""})
        return f"{ausgang}" if ausgang != "ende" else self.verweigert(self.alt, "konnte keine Rettungskopie angelegt werden")

    def zustand_voll_zweiter(self, ordner):
        self.welt.frisch(self.alt)
        self.fuellen(ordner)
        ausgang = self.welt.lauf(self.SPEICHERN, zusatz={"XDG_STATE_HOME": str(ordner)})
        gesagt = sum(AUSWEICHEN in z for z in self.welt.meldungen())
        if ausgang != "ende" or gesagt != 1:
            return f"{ausgang}, {gesagt} Hinweise: {self.welt.meldungen()}"
        return "" if self.welt.inhalt(self.welt.buch) == self.neu else "nicht gespeichert"


def main():
    angaben = argparse.ArgumentParser(description=__doc__)
    angaben.add_argument("--bau", required=True)
    angaben.add_argument("--kurz", action="store_true")
    angaben.add_argument("--teil", choices=TEILE)
    wahl = angaben.parse_args()
    for datei in ("src/tafelquell", "tests/sweep/treiber/libtafelquell_treiber.so"):
        if not (pathlib.Path(wahl.bau) / datei).exists():
            sys.exit(f"Nicht gebaut: {wahl.bau}/{datei}")
    # In memory where there is such a place: what counts is the order of the calls, not the speed of a disc.
    ort = os.environ.get("TMPDIR") or ("/dev/shm" if os.access("/dev/shm", os.W_OK) else None)
    with tempfile.TemporaryDirectory(prefix="tafelquell-sweep-", dir=ort) as ordner:
        durchgang = Durchgang(Welt(wahl.bau, ordner), wahl.kurz)
        for teil in TEILE:
            if wahl.teil in (None, teil):
                getattr(durchgang, teil)()
        return durchgang.zahl.schluss()


if __name__ == "__main__":
    sys.exit(main())
