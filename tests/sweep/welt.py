"""One small world in which the finished program runs: a grade book, a profile, a script and what came of it."""

import os
import pathlib
import re
import shutil
import subprocess
import time

HIER = pathlib.Path(__file__).resolve().parent
FRIST_LAUF = 60  # seconds; a run takes a fraction of one
LANGSAMER_SCHRITT_MS = "5000"


class Welt:
    """Folders, files and processes below one folder; begun anew for each run."""

    def __init__(self, bau, ordner):
        self.bau = pathlib.Path(bau).resolve()
        self.ordner = pathlib.Path(ordner)
        self.buch = self.ordner / "buecher" / "buch.txt"
        self.neu = self.ordner / "buecher" / "neu.txt"
        self.phrasen = self.ordner / "buecher" / "phrasen.txt"
        self.zustand = self.ordner / "state" / "tafelquell"
        self.laufzeit = self.ordner / "laufzeit" / "tafelquell"  # the second choice for rescue copies
        self.mit_phrasen = False  # else the phrase file is the delivered one
        self.protokoll = self.ordner / "protokoll"
        self.spur = self.ordner / "spur"

    def frisch(self, inhalt, buch=None, zustand=None, phrasen=None):
        """Removes what the last run left. zustand: a folder whose files the state folder begins with."""
        if buch:
            self.buch = pathlib.Path(buch)
        for name in ("buecher", "state", "config", "data", "skripte", "laufzeit"):
            shutil.rmtree(self.ordner / name, ignore_errors=True)
            (self.ordner / name).mkdir(parents=True, mode=0o700)
        self.zustand.mkdir(mode=0o700)
        for datei in zustand.iterdir() if zustand else ():
            shutil.copy(datei, self.zustand)
        self.mit_phrasen = phrasen is not None
        self.profil()
        if inhalt is not None:
            self.buch.write_bytes(inhalt)
        if phrasen is not None:
            self.phrasen.write_bytes(phrasen)

    def profil(self):
        """Settings that name the grade book, and the delivered files where the program keeps them."""
        einstellungen = self.ordner / "config" / "Tafelquell" / "Tafelquell.conf"
        einstellungen.parent.mkdir(exist_ok=True)
        phrasen = f"Formulierungen={self.phrasen}\n" if self.mit_phrasen else ""
        einstellungen.write_text(f"[Settings]\nAutoDatei={self.buch}\n{phrasen}ErstesMal=nein\n")
        eigene = self.ordner / "data" / "tafelquell"
        eigene.mkdir(exist_ok=True)
        for name in ("Tafelquell.ini", "Formulierungen.txt"):
            quelle = HIER.parents[1] / "data" / name
            if quelle.exists():
                shutil.copy(quelle, eigene)

    def umgebung(self, skript):
        return {
            "PATH": os.environ["PATH"], "HOME": str(self.ordner), "LC_ALL": "de_DE.UTF-8",
            "XDG_CONFIG_HOME": str(self.ordner / "config"), "XDG_DATA_HOME": str(self.ordner / "data"),
            "XDG_STATE_HOME": str(self.ordner / "state"), "XDG_RUNTIME_DIR": str(self.laufzeit.parent),
            "QT_QPA_PLATFORM": "offscreen", "TREIBER_SKRIPT": str(skript),
            "TREIBER_PROTOKOLL": str(self.protokoll), "TREIBER_FRIST": LANGSAMER_SCHRITT_MS,
        }

    def skript(self, vorlage):
        """A script made from a template, or from lines."""
        text = (HIER / "sitzungen" / vorlage).read_text() if isinstance(vorlage, str) else "\n".join(vorlage)
        datei = self.ordner / "skripte" / "skript.txt"
        datei.write_text(text.replace("{ORDNER}", str(self.buch.parent)))
        return datei

    def starten(self, vorlage, strace=(), vorlader=(), zusatz=None):
        """Starts the program under the driver and, if asked, under strace."""
        self.protokoll.unlink(missing_ok=True)
        umgebung = self.umgebung(self.skript(vorlage)) | (zusatz or {})
        vor = ":".join([*map(str, vorlader), str(self.bau / "tests/sweep/treiber/libtafelquell_treiber.so")])
        programm = [str(self.bau / "src" / "tafelquell")]
        if strace:
            # The quick filter stops where no signal can be given: it is for errors only.
            schnell = [] if any("signal=" in teil for teil in strace) else ["--seccomp-bpf"]
            befehl = ["strace", "-f", *schnell, "-qq", "-o", str(self.spur), *strace, "-E", f"LD_PRELOAD={vor}"]
            programm = befehl + programm
        else:
            umgebung["LD_PRELOAD"] = vor
        return subprocess.Popen(programm, env=umgebung, cwd=self.ordner, stdout=subprocess.DEVNULL,
                                stderr=subprocess.DEVNULL)

    def lauf(self, vorlage, **mehr):
        """Runs to the end. Gives "ende", "getoetet", "haengt", or "falsch <code>"."""
        prozess = self.starten(vorlage, **mehr)
        try:
            code = prozess.wait(FRIST_LAUF)
        except subprocess.TimeoutExpired:
            prozess.kill()
            prozess.wait()
            return "haengt"
        return {0: "ende", -9: "getoetet", 137: "getoetet"}.get(code, f"falsch {code}")

    def meldungen(self):
        """The lines of the driver's protocol of the last run."""
        return self.protokoll.read_text(errors="replace").splitlines() if self.protokoll.exists() else []

    def offene_rettungen(self):
        ordner = [o for o in (self.zustand, self.laufzeit) if o.exists()]
        return [p for o in ordner for p in o.iterdir() if p.suffix in (".rescue", ".tmp")]

    def inhalt(self, pfad):
        return pfad.read_bytes() if pfad.exists() else None


AUFRUFE = ("open,openat,read,pread64,write,pwrite64,fsync,fdatasync,ftruncate,truncate,fallocate,rename,unlink,close,"
           "lseek,newfstatat,statx,getdents64,flock,mkdir,readlink,access,fchmod")


def filter_fuer(welt):
    """The paths whose calls count: targets, their folder, state folder, its second, rescue copies. Without them
    the dynamic loader's calls would be hit."""
    pfade = [welt.buch, welt.neu, welt.phrasen, welt.buch.parent, welt.zustand, welt.laufzeit.parent, welt.laufzeit]
    pfade += [o / f"r.{n}.{e}" for o in (welt.zustand, welt.laufzeit) for n in (1, 2, 3) for e in ("tmp", "rescue")]
    return [teil for pfad in pfade for teil in ("-P", str(pfad))]


def aufrufe_zaehlen(welt, vorlage, zusatz=None):
    """Runs once without a fault and counts the calls of the main thread by name."""
    ausgang = welt.lauf(vorlage, strace=[*filter_fuer(welt), "-e", f"trace={AUFRUFE}"], zusatz=zusatz)
    assert ausgang == "ende", f"der Lauf ohne Störung endete mit: {ausgang}: {welt.meldungen()}"
    zeilen = [re.match(r"(\d+) +(\w+)\(", zeile) for zeile in welt.spur.read_text(errors="replace").splitlines()]
    zeilen = [z for z in zeilen if z]
    haupt = zeilen[0].group(1)
    zahl = {}
    for zeile in zeilen:
        if zeile.group(1) == haupt:
            zahl[zeile.group(2)] = zahl.get(zeile.group(2), 0) + 1
    return zahl


def getroffen(welt):
    """Whether strace has injected anything in the last run."""
    text = welt.spur.read_text(errors="replace") if welt.spur.exists() else ""
    return "(INJECTED)" in text or "SIGKILL" in text


def jetzt():
    return time.monotonic()
