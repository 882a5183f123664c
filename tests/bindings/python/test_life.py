"""Threads, and objects that go in any order."""

import gc
import itertools
import threading

import pytest
from hosts import MapRegistry, Person

import quorconversions as quor
from quorconversions import Conversion, ConversionType, _runtime


def test_objects_may_go_in_every_order():
    before = quor.handle_count()
    for order in itertools.permutations(range(5)):
        conversion = Conversion(ConversionType.ITS90, Person())
        settings = conversion.settings
        registry = MapRegistry()
        conversion.SetRegistry(registry)
        kept = [conversion, settings, settings.low_range, settings.high_range, registry]
        del conversion, settings, registry
        for place in order:
            kept[place] = None
        assert quor.handle_count() == before, order


def test_objects_in_a_ring_are_collected():
    before = quor.handle_count()
    ring = [Conversion(ConversionType.CVD)]
    ring.append(ring)
    ring.append(ring[0].settings)
    del ring
    gc.collect()
    assert quor.handle_count() == before


def test_an_object_that_is_released_inside_a_call_on_it_lives_to_its_end():
    kept = []

    def run(dialog):
        kept.clear()
        gc.collect()
        dialog.Escape()

    kept.append(Conversion(ConversionType.CVD, Person(run)))
    assert not kept[0].settings.edit()


def test_an_object_can_neither_be_copied_nor_pickled():
    import copy
    import pickle
    conversion = Conversion()
    for way in (copy.copy, copy.deepcopy, pickle.dumps):
        with pytest.raises(TypeError):
            way(conversion)


def test_objects_that_do_not_know_each_other_are_free_in_two_threads(tmp_path):
    failures = []

    def work(number):
        try:
            path = tmp_path / f"{number}.ini"
            for turn in range(50):
                conversion = Conversion(ConversionType.CVD)
                conversion.settings.R0 = number + turn / 64
                with quor.ProbeFile(path, create=True) as file:
                    file["P"] = conversion
                assert quor.ProbeFile(path)["P"].settings.R0 == number + turn / 64
                with pytest.raises(quor.QuorError) as raised:
                    conversion.settings.get_Coefficients(number + 100)
                assert raised.value.source == "CQuorCVD"
        except BaseException as error:
            failures.append(error)

    threads = [threading.Thread(target=work, args=(number,)) for number in range(4)]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    assert failures == []


def test_other_threads_go_on_while_a_dialog_is_open():
    keeps_the_global_lock = 4  # a flag of ctypes
    for name in "Edit", "OpenFile", "SaveFileAs":
        assert not getattr(_runtime.library, f"quor_cvd_{name}")._flags_ & keeps_the_global_lock
    for name in "GetName", "ReadFromFile", "WriteToFile":
        assert getattr(_runtime.library, f"quor_cvd_{name}")._flags_ & keeps_the_global_lock


def test_a_host_in_each_of_two_threads_gets_its_own_exceptions_back():
    failures = []

    def work(number):
        for turn in range(200):
            error = ValueError(number, turn)

            def run(dialog):
                raise error

            try:
                Conversion(ConversionType.CVD, Person(run)).edit()
                failures.append("nothing was raised")
            except ValueError as raised:
                if raised.with_traceback(None) is not error:
                    failures.append(raised)

    threads = [threading.Thread(target=work, args=(number,)) for number in range(2)]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    assert failures == []
