#!/usr/bin/env python3
"""Songs with tags of other programs, and what other programs then read of them.

  foreign_tags.py make FOLDER CORES   writes the songs into FOLDER, and what lies behind the tag of each (music, and
                                      tags at the end other than ID3v1) into CORES; prints the writers that are missing
  foreign_tags.py dump FOLDER CORES   prints one line for each value of each song: song, reader, field, value

A song is known by the word "wNN" in its name, wherever it stands. All that a dump tells comes from mutagen and ffmpeg,
but for "core", which tells whether the bytes behind the tag are those of before.
"""
import hashlib
import os
import re
import shutil
import subprocess
import sys

import mutagen.apev2
import mutagen.id3 as id3

ARTIST, TITLE = "arvola {}", "song_one"


def run(*command):
    subprocess.run(command, check=True, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


def synchsafe(number):
    return bytes((number >> shift) & 127 for shift in (21, 14, 7, 0))


def unsynchronised(data):
    out = bytearray()
    for at, byte in enumerate(data):
        out.append(byte)
        if byte == 0xFF and (at + 1 == len(data) or data[at + 1] >= 0xE0 or data[at + 1] == 0):
            out.append(0)
    return bytes(out)


def frame(version, name, body, flags=0):
    if version == 2:
        return name + len(body).to_bytes(3, "big") + body
    size = synchsafe(len(body)) if version == 4 else len(body).to_bytes(4, "big")
    return name + size + flags.to_bytes(2, "big") + body


def tag(version, frames, flags=0, before=b"", padding=0):
    body = before + frames + bytes(padding)
    return b"ID3" + bytes((version, 0, flags)) + synchsafe(len(body)) + body


def latin(text):
    return b"\0" + text.encode("latin-1")


def plain_frames(version, word):
    names = (b"TT2", b"TP1", b"TAL", b"TRK") if version == 2 else (b"TIT2", b"TPE1", b"TALB", b"TRCK")
    values = (TITLE, ARTIST.format(word), "Album", "3/12")
    return b"".join(frame(version, name, latin(value)) for name, value in zip(names, values))


PICTURE = b"\xff\xd8\xff\xe0" + bytes(range(256)) * 66 + b"\xff\xd9"


def id3v1(word, comment=b"a comment of thirty characters"):
    fields = (TITLE, ARTIST.format(word), "Album")
    return b"TAG" + b"".join(text.encode().ljust(30, b"\0") for text in fields) + b"1999" + comment.ljust(30, b"\0") + b"\x11"


class Maker:
    def __init__(self, folder, cores):
        self.folder, self.cores, self.count, self.missing = folder, cores, 0, set()
        work = os.path.join(cores, "work.mp3")
        tone = ("ffmpeg", "-v", "error", "-y", "-f", "lavfi", "-i", "sine=frequency=440:sample_rate=44100:duration=2")
        run(*tone, "-b:a", "64k", "-id3v2_version", "0", "-write_xing", "0", work)
        self.constant = self.read(work)
        run(*tone, "-q:a", "5", "-id3v2_version", "0", work)
        self.variable = self.read(work)
        self.covers = []
        for size in ("120x120", "740x740"):
            cover = os.path.join(cores, size + ".png")
            run("ffmpeg", "-v", "error", "-y", "-f", "lavfi", "-i", "nullsrc=s=" + size,
                "-vf", "geq=random(1)*255:128:128", "-frames:v", "1", cover)
            self.covers.append(cover)

    @staticmethod
    def read(path):
        with open(path, "rb") as file:
            return file.read()

    def song(self, core, head=b"", end=b""):
        """A new song; returns its path and its word."""
        self.count += 1
        word = "w%02d" % self.count
        path = os.path.join(self.folder, ARTIST.format(word) + " - " + TITLE + ".mp3")
        with open(path, "wb") as file:
            file.write((head(word) if callable(head) else head) + core + (end(word) if callable(end) else end))
        with open(os.path.join(self.cores, word), "wb") as file:
            file.write(core)
        return path, word

    def program(self, name, core, *arguments):
        if not shutil.which(name):
            # Few machines have this one; what it writes is much like the songs of mutagen.
            if name != "kid3-cli":
                self.missing.add(name)
            return print("not tried, as it is missing: " + name, file=sys.stderr)
        path, word = self.song(core)
        run(name, *(argument.replace("@WORD", ARTIST.format(word)).replace("@PATH", path) for argument in arguments))

    def by_ffmpeg(self, version, cover):
        path, word = self.song(self.constant)
        plain = os.path.join(self.cores, "plain.mp3")
        shutil.copy(path, plain)
        run("ffmpeg", "-v", "error", "-y", "-i", plain, "-i", cover, "-map", "0:a", "-map", "1", "-c", "copy",
            "-id3v2_version", str(version), "-write_xing", "0", "-metadata", "title=" + TITLE,
            "-metadata", "artist=" + ARTIST.format(word), "-metadata", "album=Álbum", "-metadata", "track=3/12",
            "-metadata", "date=1999-05-01", "-metadata", "genre=Rock", "-metadata", "comment=čćž",
            "-write_id3v1", "0", path)

    def by_mutagen(self, version, padding, core, full=True, both=False):
        path, word = self.song(core)
        tags = id3.ID3()
        e = id3.Encoding.UTF16 if version == 3 else id3.Encoding.UTF8
        tags.add(id3.TIT2(encoding=e, text=TITLE))
        tags.add(id3.TPE1(encoding=e, text=[ARTIST.format(word)]))
        tags.add(id3.TALB(encoding=e, text="Ствари"))
        tags.add(id3.TDRC(encoding=e, text="1999"))
        tags.add(id3.TCON(encoding=e, text="Rock"))
        if full:
            tags.add(id3.TCOM(encoding=e, text=["One", "Two"]))
            tags.add(id3.COMM(encoding=e, lang="eng", desc="", text="naïve – ‘quoted’"))
            tags.add(id3.COMM(encoding=e, lang="srp", desc="опис", text="коментар"))
            tags.add(id3.USLT(encoding=e, lang="eng", desc="", text="line one\nline two 中文"))
            tags.add(id3.TXXX(encoding=e, desc="replaygain_track_gain", text="-6.48 dB"))
            tags.add(id3.TXXX(encoding=e, desc="MusicBrainz Album Id", text="c9fd"))
            tags.add(id3.UFID(owner="http://musicbrainz.org", data=b"\0\xff\xfb90"))
            tags.add(id3.PRIV(owner="x", data=bytes(range(256))))
            tags.add(id3.POPM(email="user@host", rating=196, count=7))
            tags.add(id3.RVA2(desc="track", channel=1, gain=-6.5, peak=0.98))
            tags.add(id3.APIC(encoding=e, mime="image/jpeg", type=3, desc="omot", data=PICTURE))
        tags.save(path, v1=2 if both else 0, v2_version=version, padding=lambda _: padding)

    def make(self):
        music, vbr = self.constant, self.variable
        for cover in self.covers:
            for version in (3, 4):
                self.by_ffmpeg(version, cover)
        for version in (3, 4):
            for padding in (0, 1500):
                self.by_mutagen(version, padding, music)
            self.by_mutagen(version, 0, vbr, both=True)
            self.by_mutagen(version, 0, music, full=False)
        self.program("eyeD3", music, "-Q", "-a", "@WORD", "-t", TITLE, "-A", "Album", "-c", "kommentar ä", "-n", "3",
                     "--add-image", self.covers[0] + ":FRONT_COVER", "@PATH")
        self.program("id3v2", vbr, "-a", "@WORD", "-t", TITLE, "-A", "Album", "-T", "3/12", "-y", "1999", "-g", "17",
                     "-c", "x:comment:eng", "@PATH")
        for version in ("2.3", "2.4"):
            self.program("kid3-cli", music, "-c", "set artist '@WORD'", "-c", "set title '" + TITLE + "'",
                         "-c", "set album 'Ålbum'", "-c", "set picture:'" + self.covers[0] + "' 'cover'",
                         "-c", "to" + version.replace(".", ""), "-c", "save", "@PATH")
        wav = os.path.join(self.cores, "tone.wav")
        run("ffmpeg", "-v", "error", "-y", "-f", "lavfi", "-i", "sine=duration=2", wav)
        for mode in (("-V", "5"), ("-b", "128")):
            if not shutil.which("lame"):
                self.missing.add("lame")
                break
            path = os.path.join(self.cores, "lame.mp3")
            run("lame", "-S", *mode, wav, path)
            core = self.read(path)
            self.song(core, tag(3, plain_frames(3, "w%02d" % (self.count + 1))))
        picture2 = frame(2, b"PIC", b"\0JPG\3cover\0" + PICTURE)
        self.song(music, lambda word: tag(2, plain_frames(2, word) + picture2))
        self.song(music, lambda word: tag(2, plain_frames(2, word) + frame(2, b"UFI", b"owner\0\xff\xe0id")), id3v1)
        picture3 = frame(3, b"APIC", b"\0image/jpeg\0\3\0" + PICTURE)
        self.song(music, lambda word: tag(3, unsynchronised(plain_frames(3, word) + picture3), 0x80))
        picture4 = b"\0image/jpeg\0\3\0" + PICTURE
        self.song(music, lambda word: tag(4, plain_frames(4, word) + frame(
            4, b"APIC", synchsafe(len(picture4)) + unsynchronised(picture4), 3), 0x80))
        self.song(music, lambda word: tag(3, plain_frames(3, word) + picture3, 0x40, b"\0\0\0\6\0\0\0\0\0\x20", 32))
        self.song(music, lambda word: tag(4, plain_frames(4, word), 0x40, b"\0\0\0\6\1\0", 64))

        def footed(word):
            whole = tag(4, plain_frames(4, word), 0x10)
            return whole + b"3DI" + whole[3:10]

        self.song(music, footed)
        path, word = self.song(music)
        ape = mutagen.apev2.APEv2()
        ape["Title"], ape["REPLAYGAIN_TRACK_GAIN"] = TITLE, "-3 dB"
        ape.save(path)
        core = self.read(path)
        shutil.copy(path, os.path.join(self.cores, word))
        lyrics = b"LYRICSBEGININD0000200LYR00006lyrics"
        lyrics += b"%06d" % len(lyrics) + b"LYRICS200"
        for behind in (core, music + lyrics):
            self.song(behind, lambda word: tag(3, plain_frames(3, word)), id3v1)
            self.song(behind, lambda word: tag(4, plain_frames(4, word)))
        self.song(music, b"", id3v1)
        self.song(vbr)


def values_of(frame):
    if frame.FrameID == "TCON":
        return "|".join(frame.genres)
    texts = []
    for spec in frame._framespec:
        value = getattr(frame, spec.name, None)
        if spec.name == "encoding":
            continue
        texts.append(hashlib.md5(value).hexdigest() if isinstance(value, bytes) and len(value) > 40 else repr(value))
    return " ".join(texts)


def core_of(data, core):
    behind = data[:-128] if data[-128:-125] == b"TAG" else data
    return "whole" if behind.endswith(core) else "damaged"


def by_mutagen(path, data, say):
    try:
        for key, value in id3.ID3(path, load_v1=False).items():
            say("v2", "APIC" if key.startswith("APIC") else ascii(key)[1:-1][:60], values_of(value))
    except id3.ID3NoHeaderError:
        say("v2", "none", "")
    old = id3.ParseID3v1(data[-128:]) if data[-128:-125] == b"TAG" else None
    for key, value in (old or {}).items():
        say("v1", key, values_of(value))
    try:
        for key, value in mutagen.apev2.APEv2(path).items():
            say("ape", key, repr(value))
    except mutagen.apev2.APENoHeaderError:
        pass


def by_ffmpeg(paths, say):
    inputs, outputs, scratch = [], [], []
    for index, path in enumerate(paths):
        base = "/dev/shm" if os.path.isdir("/dev/shm") else None
        inputs += ["-i", "file:" + path]
        out = "%s/foreign_tags.%d.%d" % (base or os.path.dirname(path), os.getpid(), index)
        scratch.append(out)
        outputs += ["-map", "%d:a" % index, "-map_metadata", "-1", "-f", "md5", out + ".md5"]
        outputs += ["-map_metadata", str(index), "-f", "ffmetadata", out + ".txt"]
    try:
        run("ffmpeg", "-v", "error", "-y", *inputs, *outputs)
        for index, out in enumerate(scratch):
            with open(out + ".md5") as file:
                say(index, "sound", file.read().strip())
            with open(out + ".txt", encoding="utf-8", errors="replace") as file:
                for key, value in re.findall(r"^(?!encoder)([^=;\n]+)=((?:\\\n|[^\n])*)", file.read(), re.M):
                    say(index, key, value.replace("\\\n", "\\n"))
    finally:
        for out in scratch:
            for ending in (".md5", ".txt"):
                if os.path.exists(out + ending):
                    os.remove(out + ending)


def dump(folder, cores):
    songs = {}
    for name in os.listdir(folder):
        word = re.search(r"w\d\d", name.lower())
        if word:
            songs[word.group()] = os.path.join(folder, name)
    lines = []
    words = sorted(songs)
    for word in words:
        with open(songs[word], "rb") as file:
            data = file.read()

        def say(reader, field, value):
            lines.append("\t".join((word, reader, field, value)).replace("\n", "\\n"))

        say("file", "core", core_of(data, Maker.read(os.path.join(cores, word))))
        say("file", "bytes", hashlib.md5(data).hexdigest())
        by_mutagen(songs[word], data, say)
    by_ffmpeg([songs[word] for word in words],
              lambda index, field, value: lines.append("\t".join((words[index], "ffmpeg", field, value))))
    print("\n".join(lines))


if __name__ == "__main__":
    command, folder, cores = sys.argv[1:]
    if command == "make":
        maker = Maker(folder, cores)
        maker.make()
        print(" ".join(sorted(maker.missing)))
    else:
        dump(folder, cores)
