-- Comma files of data files: files on the left, the newest session of one and what is to be made on the right.

CREATE TABLE FileExportDialog (
  Name        TEXT(60) NOT NULL COLLATE NOCASE,
  "Left"      INTEGER,
  Top         INTEGER,
  Width       INTEGER,
  Height      INTEGER,
  Value       TEXT,
  Visible     BOOLEAN DEFAULT -1,
  Tag         TEXT(20),
  CapEnglish  TEXT,
  TipEnglish  TEXT(255),
  HelpEnglish TEXT
);
CREATE UNIQUE INDEX FileExportDialog_NameIndex ON FileExportDialog(Name COLLATE NOCASE);

INSERT INTO FileExportDialog(Name, "Left", Top, Width, Height, Value, Visible, Tag, CapEnglish,
                             TipEnglish, HelpEnglish) VALUES
  -- the form
  ('Me',                  1200,   900, 12000,  7860, NULL,  -1, 'C',  'Export data files',
     NULL, 'Mark one or more files with Shift, Ctrl or Ctrl+A and press OK: their comma files are written beside them. Del deletes a file.'),
  -- place
  ('DriveSelect',          180,   180,  5160,   450, NULL,  -1, NULL, NULL,
     'Drive of the data files', NULL),
  ('DirectorySelect',      180,   750,  5160,  2700, NULL,  -1, NULL, NULL,
     'Folder of the data files', 'A double click, Enter or Right goes into a folder; Left goes out of it.'),
  ('LabelFiles',           180,  3570,  5160,   270, NULL,  -1, NULL, 'Data files', NULL, NULL),
  ('FileSelect',           180,  3870,  5160,  2400, NULL,  -1, NULL, NULL,
     'Click a file to see its newest session; Shift and Ctrl mark several', 'Del deletes the file under the cursor after a question.'),
  ('LabelPath',            180,  6435,  1200,   300, NULL,  -1, NULL, 'Folder', NULL, NULL),
  ('FullPathLabel',       1440,  6435, 10380,   300, NULL,  -1, NULL, NULL, NULL, NULL),
  -- the newest session of the file under the cursor
  ('Labels(0)',           5640,   270,  1740,   300, NULL,  -1, NULL, 'Facility', NULL, NULL),
  ('Texts(0)',            7440,   180,  4380,   450, NULL,  -1, NULL, NULL,
     'Name of the road', NULL),
  ('Labels(1)',           5640,   870,  1740,   300, NULL,  -1, NULL, 'Section', NULL, NULL),
  ('Texts(1)',            7440,   780,  4380,   450, NULL,  -1, NULL, NULL,
     'Name of the stretch of road', NULL),
  ('Labels(9)',           5640,  1470,  1740,   300, NULL,  -1, NULL, 'Start', NULL, NULL),
  ('Texts(9)',            7440,  1380,  4380,   450, NULL,  -1, NULL, NULL,
     'Where the section starts', NULL),
  ('Labels(10)',          5640,  2070,  1740,   300, NULL,  -1, NULL, 'End', NULL, NULL),
  ('Texts(10)',           7440,  1980,  4380,   450, NULL,  -1, NULL, NULL,
     'Where the section ends', NULL),
  ('LabelSetup',          5640,  2670,  1740,   300, NULL,  -1, NULL, 'Test setup', NULL, NULL),
  ('TestSetupLabel',      7440,  2670,  4380,   300, NULL,  -1, NULL, NULL, NULL, NULL),
  ('LabelUnits',          5640,  3150,  1740,   300, NULL,  -1, NULL, 'Filed units', NULL, NULL),
  ('FiledUnitsLabel',     7440,  3150,  4380,   300, NULL,  -1, NULL, NULL,
     'Units of the file; they blink when a comma file would be written in others', NULL),
  ('FiledStationsLabel',  7440,  3510,  4380,   300, NULL,  -1, NULL, NULL,
     'Unit of its stations; it blinks when a comma file would be written in another', NULL),
  ('BlinkTimer',          NULL,  NULL,  NULL,  NULL, NULL,  -1, NULL, NULL, NULL, NULL),
  -- what is made
  ('OptionJoin',          5640,  4290,  6180,   390, '-1',  -1, NULL, '&Join all sessions in one file',
     'One comma file, named like the data file', NULL),
  ('OptionKeep',          5640,  4740,  6180,   390, '0',  -1, NULL, '&Keep sessions apart',
     'A comma file for each session, with its number behind the name', NULL),
  ('CheckTKR',            5640,  5250,  6180,   390, '1',  -1, NULL, '&Write comma files',
     'Without the mark the files are read and nothing is written', NULL),
  ('ProgressLabel',       5640,  5820,  6180,   450, NULL,  -1, NULL, NULL, NULL, NULL),
  -- commands
  ('CmdOK',               6480,  7035,  2580,   600, NULL,  -1, NULL, '&OK',
     'Writes the comma files of the marked files', NULL),
  ('CmdCancel',           9240,  7035,  2580,   600, NULL,  -1, NULL, '&Cancel',
     'Closes the form; while it writes, stops behind the present file', NULL);
