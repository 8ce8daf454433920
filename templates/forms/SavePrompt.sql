-- Asks before a form with changes is closed. Code sets the subject: the caption of that form.

CREATE TABLE SavePrompt (
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
CREATE UNIQUE INDEX SavePrompt_NameIndex ON SavePrompt(Name COLLATE NOCASE);

INSERT INTO SavePrompt(Name, "Left", Top, Width, Height, Value, Visible, Tag, CapEnglish,
                       TipEnglish, HelpEnglish) VALUES
  ('Me',                    3000,   3600,   6600,   2160, NULL,  -1,  'C', 'Save changes',
     NULL, 'Yes saves the changes. No, Esc and F4 leave them.'),
  ('Question',               240,    240,   6120,    330, NULL,  -1, NULL, 'Save the changes?', NULL, NULL),
  ('Subject',                240,    660,   6120,    330, NULL,  -1, NULL, NULL, NULL, NULL),
  ('CmdYes',                1020,   1320,   2580,    600, NULL,  -1, NULL, '&Yes',
     'Saves the changes', NULL),
  ('CmdNo',                 3780,   1320,   2580,    600, NULL,  -1, NULL, '&No',
     'Leaves the changes', NULL);
