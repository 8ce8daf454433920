-- One numbered message. The number stands in the corner of the text, so that the operator can quote it.

CREATE TABLE Message (
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
CREATE UNIQUE INDEX Message_NameIndex ON Message(Name COLLATE NOCASE);

INSERT INTO Message(Name, "Left", Top, Width, Height, Value, Visible, Tag, CapEnglish,
                   TipEnglish, HelpEnglish) VALUES
  ('Me',           3900,  3600,  7500,  3000, NULL,  -1, 'C',  'Trekor Message',
     NULL, 'Space, Enter, Esc, F4 or a click closes the window.'),
  ('MessageNo',    6760,  2590,   600,   270, NULL,  -1, NULL, NULL,
     'Number of the message', NULL),
  ('MessageText',    70,    70,  7360,  2860, NULL,  -1, NULL, NULL, NULL, NULL);
