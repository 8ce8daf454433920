-- A vocabulary to begin with: what a pavement inspector meets on an ordinary road, and two test setups over it. It follows
-- the lookups of Observations.sql. A vehicle changes it as it likes; an update never touches it.

INSERT INTO Languages(LanguageID, Language) VALUES (1, 'Pavement inspection');

-- ------------------------------------------------------------------------------------------------------- items: their names
--
-- Codes: 100 cracks, 110 surface, 120 holes and repairs, 130 edge, 140 shape, 150 make, 200 drainage, 210 furniture,
-- 220 structures and lanes, 290 notes. Abbreviations stand in narrow columns: six letters at most.

INSERT INTO ObsLinguistic(LanguageID, ObsCode, ObsNameDisp, ObsNameFile, ObsAbrvDisp, ObsAbrvFile, ObsIcon) VALUES
  (1, 101, 'Longitudinal crack', 'Longitudinal crack', 'LCrack', 'LCR', 'LongitudinalCrack.png'),
  (1, 102, 'Transverse crack',   'Transverse crack',   'TCrack', 'TCR', 'TransverseCrack.png'),
  (1, 103, 'Alligator crack',    'Alligator crack',    'Allig',  'ALL', 'AlligatorCrack.png'),
  (1, 104, 'Block crack',        'Block crack',        'Block',  'BLC', 'BlockCrack.png'),
  (1, 111, 'Ravelling',          'Ravelling',          'Ravel',  'RAV', 'Ravelling.png'),
  (1, 112, 'Bleeding',           'Bleeding',           'Bleed',  'BLE', 'Bleeding.png'),
  (1, 121, 'Pothole',            'Pothole',            'Pothol', 'POT', 'Pothole.png'),
  (1, 122, 'Patch',              'Patch',              'Patch',  'PAT', 'Patch.png'),
  (1, 123, 'Patch area',         'Patch area',         'PArea',  'PAA', 'PatchArea.png'),
  (1, 131, 'Edge break',         'Edge break',         'Edge',   'EDG', 'EdgeBreak.png'),
  (1, 132, 'Shoulder drop',      'Shoulder drop',      'Shoul',  'SHD', 'ShoulderDrop.png'),
  (1, 141, 'Rut class',          'Rut class',          'RutCl',  'RUC', 'RutClass.png'),
  (1, 142, 'Rut depth',          'Rut depth',          'RutDp',  'RUD', 'RutDepth.png'),
  (1, 143, 'Corrugation',        'Corrugation',        'Corrug', 'COR', 'Corrugation.png'),
  (1, 151, 'Surface type',       'Surface type',       'Surf',   'SUR', 'SurfaceType.png'),
  (1, 201, 'Drain blocked',      'Drain blocked',      'Drain',  'DRB', 'DrainBlocked.png'),
  (1, 211, 'Road sign',          'Road sign',          'Sign',   'SGN', 'RoadSign.png'),
  (1, 212, 'Sign damaged',       'Sign damaged',       'SgnDm',  'SGD', 'SignDamaged.png'),
  (1, 213, 'Guardrail',          'Guardrail',          'Guard',  'GRD', 'Guardrail.png'),
  (1, 214, 'Marking worn',       'Marking worn',       'Mark',   'MRK', 'MarkingWorn.png'),
  (1, 215, 'Manhole',            'Manhole',            'Manh',   'MNH', 'Manhole.png'),
  (1, 221, 'Bridge',             'Bridge',             'Bridge', 'BRI', 'Bridge.png'),
  (1, 222, 'Lanes',              'Lanes',              'Lanes',  'LNS', 'Lanes.png'),
  (1, 291, 'Note',               'Note',               'Note',   'NOT', 'Note.png');

-- -------------------------------------------------------------------------------------------------- items: how they behave
--
-- DataType 0 Boolean, 1 Integer, 2 Float, 4 Text. RegModeCode 0 point, 1 present step, 2 continues until changed,
-- 3 point that continues. KeyingCode 2: a second key gives the value.
--
-- An integer counts up at each press in modes 1 and 2 (severities, counts). In modes 0 and 3 it is asked for when its range
-- is wider than one; otherwise it is a mere mark (0) or a switch between begin and end (3).

INSERT INTO Observations(LanguageID, ObsCode, DataType, Min, Max, RegModeCode, KeyingCode, TextDisp, TextFile) VALUES
  (1, 101, 1,  0,    3, 1, 1, 'severity 0 to 3',  'severity'),
  (1, 102, 1,  0,   20, 1, 1, 'count in a step',  'count'),
  (1, 103, 1,  0,    3, 2, 1, 'severity 0 to 3',  'severity'),
  (1, 104, 0,  0,    1, 2, 1, 'on, off',          'present'),
  (1, 111, 1,  0,    3, 2, 1, 'severity 0 to 3',  'severity'),
  (1, 112, 0,  0,    1, 1, 1, 'in this step',     'present'),
  (1, 121, 1,  0,    1, 0, 1, 'one hole',         'hole'),
  (1, 122, 1,  0,    1, 3, 1, 'begin, end',       'begin/end'),
  (1, 123, 2,  0,  500, 0, 1, 'square metres',    'm2'),
  (1, 131, 0,  0,    1, 3, 1, 'begin, end',       'begin/end'),
  (1, 132, 1,  0,  300, 0, 1, 'millimetres',      'mm'),
  (1, 141, 1,  0,    9, 2, 2, 'class, two keys',  'class'),
  (1, 142, 2,  0, 99.5, 2, 1, 'millimetres',      'mm'),
  (1, 143, 0,  0,    1, 1, 1, 'in this step',     'present'),
  (1, 151, 4,  0,    0, 2, 1, 'asphalt, chip ..', 'text'),
  (1, 201, 1,  0,    1, 0, 1, 'one drain',        'drain'),
  (1, 211, 4,  0,    0, 0, 1, 'what it says',     'text'),
  (1, 212, 1,  0,    1, 0, 1, 'one sign',         'sign'),
  (1, 213, 0,  0,    1, 3, 1, 'begin, end',       'begin/end'),
  (1, 214, 1,  0,    3, 2, 1, 'severity 0 to 3',  'severity'),
  (1, 215, 1,  0,    1, 0, 1, 'one manhole',      'manhole'),
  (1, 221, 0,  0,    1, 3, 1, 'begin, end',       'begin/end'),
  (1, 222, 1,  1,    6, 2, 1, 'number of lanes',  'lanes'),
  (1, 291, 4,  0,    0, 0, 1, 'free text',        'text');

-- ------------------------------------------------------------------------------------------------------------------ setups

INSERT INTO SetupNames(SetupID, SetupName) VALUES
  (1, 'Pavement distress'),
  (2, 'Roadside inventory');

-- Places, items and keys; an item is named by its code here, as that is what a reader knows it by. Keys: letters 65 to 90,
-- digits 48 to 57, Space 32, keypad digits 96 to 105, keypad * + - , / 106, 107, 109, 110, 111, F5 to F10 116 to 121.

INSERT INTO Setups(SetupID, ObsParID, GridPosition, KeyCode)
SELECT column1, ObsParID, column2, column4
FROM (VALUES
  -- Pavement distress: what comes most often lies under the left hand and on the thumb
  (1,  1, 121,  32),  -- Space     Pothole
  (1,  2, 101,  65),  -- A         Longitudinal crack
  (1,  3, 102,  83),  -- S         Transverse crack
  (1,  4, 103,  68),  -- D         Alligator crack
  (1,  5, 104,  70),  -- F         Block crack
  (1,  6, 111,  82),  -- R         Ravelling
  (1,  7, 112,  66),  -- B         Bleeding
  (1,  8, 122,  80),  -- P         Patch
  (1,  9, 123, 107),  -- keypad +  Patch area
  (1, 10, 131,  69),  -- E         Edge break
  (1, 11, 132, 109),  -- keypad -  Shoulder drop
  (1, 12, 141, 116),  -- F5        Rut class, then its digit
  (1, 13, 142, 117),  -- F6        Rut depth
  (1, 14, 143,  67),  -- C         Corrugation
  (1, 15, 151, 118),  -- F7        Surface type
  (1, 16, 201,  49),  -- 1         Drain blocked
  (1, 17, 291,  78),  -- N         Note
  -- Roadside inventory: made for the keypad
  (2,  1, 211,  97),  -- keypad 1  Road sign
  (2,  2, 212,  98),  -- keypad 2  Sign damaged
  (2,  3, 213,  99),  -- keypad 3  Guardrail
  (2,  4, 214, 100),  -- keypad 4  Marking worn
  (2,  5, 215, 101),  -- keypad 5  Manhole
  (2,  6, 201, 102),  -- keypad 6  Drain blocked
  (2,  7, 221, 103),  -- keypad 7  Bridge
  (2,  8, 222, 106),  -- keypad *  Lanes
  (2,  9, 151, 118),  -- F7        Surface type
  (2, 10, 121,  32),  -- Space     Pothole
  (2, 11, 291,  78))  -- N         Note
JOIN Observations ON ObsCode = column3;
