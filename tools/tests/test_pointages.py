import sys
import unittest
from pathlib import Path

from lecture import RACINE

sys.path.insert(0, str(Path(__file__).resolve().parent.parent))
import pointages

SCENARIOS = RACINE / "tests" / "scenarios"


class Pointages(unittest.TestCase):
    def test_regenere(self):
        for nom, fait in pointages.SCENARIOS:
            scenario, attendu = fait()
            self.assertEqual(scenario, (SCENARIOS / f"{nom}.scn").read_text(encoding="utf-8"), nom)
            self.assertEqual(attendu, (SCENARIOS / f"{nom}.attendu").read_text(encoding="utf-8"), nom)

    def test_plusieurs_passes(self):
        # The sky turns under a long slew: the proof must hold some that need more than one pass, and some that don't.
        scenario = (SCENARIOS / "pointage_altaz.scn").read_text(encoding="utf-8")
        self.assertIn("# 1 pass(es)", scenario)
        self.assertIn("# 3 pass(es)", scenario)


if __name__ == "__main__":
    unittest.main()
