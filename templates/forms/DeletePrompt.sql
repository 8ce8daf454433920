-- Asks before a data file is deleted. Code sets the subject: the path of the file.

CREATE TABLE DeletePrompt (
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
CREATE UNIQUE INDEX DeletePrompt_NameIndex ON DeletePrompt(Name COLLATE NOCASE);

INSERT INTO DeletePrompt(Name, "Left", Top, Width, Height, Value, Visible, Tag, CapEnglish,
                        TipEnglish, HelpEnglish) VALUES
  ('Me',       2700,  3600,  8400,  2550, NULL,  -1, 'C',  'Delete data file',
     NULL, 'Yes deletes the file with all its sessions; there is no way back. No, Esc and F4 keep it.'),
  ('Question',  240,   240,  7920,   330, NULL,  -1, NULL, 'Delete this file with all its sessions?', NULL, NULL),
  ('Subject',   240,   660,  7920,   720, NULL,  -1, NULL, NULL, NULL, NULL),
  ('CmdYes',   2820,  1710,  2580,   600, NULL,  -1, NULL, '&Yes',
     'Deletes the file', NULL),
  ('CmdNo',    5580,  1710,  2580,   600, NULL,  -1, NULL, '&No',
     'Keeps the file', NULL);
