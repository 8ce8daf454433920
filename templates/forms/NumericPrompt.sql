-- Asks for a number in a moving vehicle: one box with digits that can be read from the driver's seat. Code sets the title.

CREATE TABLE NumericPrompt (
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
CREATE UNIQUE INDEX NumericPrompt_NameIndex ON NumericPrompt(Name COLLATE NOCASE);

INSERT INTO NumericPrompt(Name, "Left", Top, Width, Height, Value, Visible, Tag, CapEnglish,
                         TipEnglish, HelpEnglish) VALUES
  ('Me',      3000,  3600,  9000,  1650, NULL,  -1, 'C',  'Enter',
     NULL, 'Type the number; Enter accepts it, Esc puts the old one back. An empty box changes nothing.'),
  ('txtBox',   150,   150,  8700,  1350, NULL,  -1, NULL, NULL, NULL, NULL);
