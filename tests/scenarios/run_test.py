"""Tests of the scenario runner itself."""

import os
import tempfile
import unittest

import manifest
import players
import run


class FakePlayer(players.Player):
    """Hands out a prepared transcript and leaves a file in the tree."""

    def __init__(self, transcript=b'{"event":"end","reason":"returned"}\n', status=0):
        self.played = players.Played(status, transcript, "trouble")

    def play(self, scenario, tree, work):
        with open(os.path.join(tree, "made.txt"), "w", encoding="ascii") as file:
            file.write("made by " + scenario.line)
        return self.played


class Folder(unittest.TestCase):
    def setUp(self):
        self.place = tempfile.TemporaryDirectory()
        self.addCleanup(self.place.cleanup)
        self.folder = os.path.join(self.place.name, "one")
        self.tree = os.path.join(self.place.name, "tree")
        os.makedirs(self.folder)
        os.makedirs(self.tree)

    def write(self, name, text):
        with open(os.path.join(self.folder, name), "w", encoding="utf-8") as file:
            file.write(text)

    def read(self, name):
        with open(os.path.join(self.folder, name), encoding="utf-8") as file:
            return file.read()


class ManifestTest(Folder):
    def test_what_is_built_is_described(self):
        manifest.build('# a comment\n\nfolder "empty"\nfile "sub/Файл.txt" text="Привет\\r\\n"\n'
                       'file "hole" size=300\nfile "z" size=5 pattern="ab"\n', self.tree)
        lines = manifest.describe(self.tree)
        self.assertEqual(lines[0], 'folder "empty"')
        self.assertTrue(lines[1].startswith('file "hole" size=300 sha256='))
        self.assertEqual(lines[2:], ['folder "sub"', 'file "sub/Файл.txt" text="Привет\\r\\n"',
                                     'file "z" text="ababa"'])
        with open(os.path.join(self.tree, "sub/Файл.txt"), "rb") as file:
            self.assertEqual(file.read(), "Привет\r\n".encode("cp1251"))

    def test_noise_is_the_same_each_time(self):
        manifest.build('file "a" size=1000 seed=7\nfile "b" size=1000 seed=7\n'
                       'file "c" size=1000 seed=8\n', self.tree)
        a, b, c = (line.split("sha256=")[1] for line in manifest.describe(self.tree))
        self.assertEqual(a, b)
        self.assertNotEqual(a, c)

    def test_attributes_go_there_and_back(self):
        manifest.build('file "a" text="" attributes=rhs\nfolder "d" attributes=h\n'
                       'file "d/b" text="" attributes=r\n', self.tree)
        self.assertEqual(manifest.describe(self.tree),
                         ['file "a" text="" attributes=rhs', 'folder "d" attributes=h',
                          'file "d/b" text="" attributes=r'])
        self.assertFalse(os.stat(os.path.join(self.tree, "a")).st_mode & 0o222)
        self.assertEqual(os.getxattr(os.path.join(self.tree, "a"), "user.DOSATTRIB"), b"0x27")

    def test_bytes_that_are_no_text_are_hashed(self):
        with open(os.path.join(self.tree, "x"), "wb") as file:
            file.write(b"\x00\x98")
        self.assertIn("sha256=", manifest.describe(self.tree)[0])

    def test_links_are_told_and_not_followed(self):
        manifest.build('file "d/x" text="1"\nlink "e/сюда" target="../d"\n', self.tree)
        self.assertEqual(os.readlink(os.path.join(self.tree, "e", "сюда")), "../d")
        self.assertEqual(manifest.describe(self.tree),
                         ['folder "d"', 'file "d/x" text="1"', 'folder "e"',
                          'link "e/сюда" target="../d"'])

    def test_bad_lines_are_refused(self):
        for line in ("a.txt", 'file a="b"', 'link "x"', 'file "x" colour=red', 'file "../x"',
                     'file "/x"', 'file "x', 'file "x" attributes=z', 'folder "x" target="y"'):
            with self.assertRaises(manifest.ManifestError, msg=line):
                manifest.build(line, self.tree)


class ScenarioTest(Folder):
    def test_quotes_keep_blanks(self):
        self.write("scenario.ini", '[scenario]\nline = "/SCH "\n')
        self.assertEqual(run.Scenario(self.folder).line, "/SCH ")

    def test_options_stand_one_a_line(self):
        self.write("scenario.ini", "[scenario]\nline = x\noptions =\n    --lock=T:\\a b@5\n"
                                   "    --now=2024-02-29 13:05:09\n")
        self.assertEqual(run.Scenario(self.folder).options,
                         ["--lock=T:\\a b@5", "--now=2024-02-29 13:05:09"])

    def test_who_leaves_players_out_says_why(self):
        self.write("scenario.ini", "[scenario]\nline = x\nplayers = linux\n")
        with self.assertRaises(ValueError):
            run.Scenario(self.folder)
        self.write("scenario.ini", "[scenario]\nline = x\nplayers = linux\nreason = y\n")
        self.assertEqual(run.Scenario(self.folder).players, ["linux"])

    def test_unknown_words_are_refused(self):
        self.write("scenario.ini", "[scenario]\nline = x\nlime = y\n")
        with self.assertRaises(ValueError):
            run.Scenario(self.folder)
        with self.assertRaises(ValueError):
            run.scenarios(self.place.name, ["none"])


class PlayTest(Folder):
    def setUp(self):
        super().setUp()
        self.write("scenario.ini", "[scenario]\nline = L\n")

    def play(self, player=None):
        return run.play(run.Scenario(self.folder), player or FakePlayer(),
                        os.path.join(self.place.name, "work"))

    def test_what_is_missing_is_written_and_fails_once(self):
        complaints = self.play()
        self.assertEqual(len(complaints), 2)
        self.assertTrue(all(line.startswith("written, look at it") for line in complaints))
        self.assertEqual(self.read("transcript.jsonl"), '{"event":"end","reason":"returned"}\n')
        self.assertEqual(self.read("after.txt"), 'file "made.txt" text="made by L"\n')
        self.assertEqual(self.play(), [])

    def test_who_sees_less_writes_nothing(self):
        player = FakePlayer()
        player.writes = False
        complaints = self.play(player)
        self.assertEqual(len(complaints), 2)
        self.assertTrue(all(line.startswith("missing") for line in complaints))
        self.assertFalse(os.path.exists(os.path.join(self.folder, "transcript.jsonl")))

    def test_another_line_fails(self):
        self.play()
        complaints = self.play(FakePlayer(b'{"event":"end","reason":"closed"}\n'))
        self.assertIn('+{"event":"end","reason":"closed"}', complaints)
        self.assertEqual(len(self.play(FakePlayer(b"{}\n{}\n"))) > 0, True)

    def test_another_tree_fails(self):
        self.play()
        self.write("after.txt", 'file "made.txt" text="other"\n')
        self.assertIn('-file "made.txt" text="other"', self.play())

    def test_another_exit_status_fails(self):
        self.play()
        self.assertEqual(self.play(FakePlayer(status=3)), ["exit status 3, not 0", "trouble"])

    def test_line_ends_are_lf(self):
        self.assertEqual(len(self.play(FakePlayer(b"{}\r\n"))), 1)
        self.assertEqual(len(self.play(FakePlayer(b"{}"))), 1)

    def test_wine_may_sort_the_values_of_a_key(self):
        line = '{"event":"registry","key":"K","values":[["б","2"],["a","1"]]}'
        self.assertEqual(players.Wine.same(line),
                         '{"event":"registry","key":"K","values":[["a","1"],["б","2"]]}')
        for other in ('{"event":"registry","key":"K","values":null}', '{"event":"end"}'):
            self.assertEqual(players.Wine.same(other), other)


if __name__ == "__main__":
    unittest.main()
