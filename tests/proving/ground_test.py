"""The proving ground proves itself: it sees what is half, lost, early or hidden."""

import random
import unittest

import failures
import power
import shimlog
import two
from versions import Versions


def operation(name, path="", other="", data=b"", kind="w", result="0"):
    return shimlog.Operation(1, kind, name, result, path, other, data)


def step(line):
    return operation("said", f"step {line}", kind="s")


def save(path, content):
    return [operation("open", path + ".unfinished", "ct"), operation("write", path + ".unfinished", data=content),
            operation("fsync", path + ".unfinished"), operation("rename", path + ".unfinished", path),
            operation("fsync", "")]


TWO_SAVES = [step(1), *save("A", b"one"), step(4), *save("A", b"two"), step(7)]


class Versioned(unittest.TestCase):
    def setUp(self):
        self.versions = Versions(TWO_SAVES)

    def test_old_and_new_are_right_while_it_is_saved(self):
        for content in (b"one", b"two"):
            self.assertEqual(self.versions.wrong({"A": content}, 4), [])
        self.assertEqual(self.versions.wrong({}, 1), [])

    def test_half_lost_and_foreign_are_wrong(self):
        for files in ({"A": b"tw"}, {}, {"A": b"two", "B": b""}):
            self.assertEqual(len(self.versions.wrong(files, 4)), 1)

    def test_the_old_one_is_wrong_in_the_step_behind(self):
        self.assertEqual(len(self.versions.wrong({"A": b"one"}, 7)), 1)

    def test_what_is_written_in_place_is_whole_only_at_the_end_of_its_step(self):
        plain = Versions([step(1), operation("open", "A", "ct"), operation("write", "A", data=b"on"),
                          operation("write", "A", data=b"e"), step(4)])
        self.assertEqual(len(plain.wrong({"A": b"on"}, 1)), 1)
        self.assertEqual(plain.wrong({"A": b"one"}, 1), [])


    def test_two_files_that_change_names(self):
        log = [step(1), *save("A", b"one"), step(4), operation("open", "N", "ct"), operation("write", "N", data=b"two"),
               operation("exchange", "N", "A"), operation("unlink", "N"), step(7)]
        swapped = Versions(log)
        for content in (b"one", b"two"):
            self.assertEqual(swapped.wrong({"A": content}, 4), [])
        self.assertEqual(len(swapped.wrong({"A": b"one"}, 7)), 1)


class WithoutPower(unittest.TestCase):
    def after(self, log, keeps=0.0):
        disk = power.Unsynced({})
        disk.folders.add("")
        for each in log:
            disk.apply(each)
        return disk.after_loss(random.Random(1), keeps)

    def test_what_was_synced_stays(self):
        self.assertEqual(self.after(TWO_SAVES), {"A": b"two"})

    def test_a_name_goes_without_the_sync_of_its_folder(self):
        self.assertEqual(self.after(TWO_SAVES[:-2]), {"A": b"one"})

    def test_names_that_changed_are_as_before_without_the_sync_of_their_folder(self):
        swap = [*save("A", b"one"), operation("open", "N", "ct"), operation("write", "N", data=b"two"),
                operation("fsync", "N"), operation("exchange", "N", "A")]
        self.assertEqual(self.after(swap)["A"], b"one")
        self.assertEqual(self.after([*swap, operation("fsync", ""), operation("unlink", "N")])["A"], b"two")

    def test_content_goes_without_its_sync(self):
        log = [each for each in save("A", b"one") if each.name != "fsync" or each.path == ""]
        self.assertNotEqual(self.after(log), {"A": b"one"})

    def test_a_folder_goes_with_all_in_it(self):
        log = [operation("mkdir", "F"), *save("F/A", b"one"), operation("fsync", "F")]
        self.assertEqual(self.after([each for each in log if each.path != ""]), {})


class Compared(unittest.TestCase):
    def test_a_line_that_is_gone_is_lost(self):
        whole, less = {"L": b"a\r\nb\r\n"}, {"L": b"b\r\n"}
        self.assertEqual(len(failures.lost(whole, less, whole)), 1)
        self.assertEqual(failures.lost(whole, whole, whole), [])
        self.assertEqual(failures.lost(whole, less, less), [])

    def test_one_number_for_two_projects(self):
        self.assertEqual(two.numbers({"Tamo/Jobs.lst": b"-1   A\r\n-2   B\r\n"}), [])
        self.assertEqual(len(two.numbers({"Tamo/Jobs.lst": b"-1   A\r\n-1   B\r\n"})), 1)


if __name__ == "__main__":
    unittest.main()
