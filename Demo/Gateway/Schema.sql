-- The gateway's state. Amounts of money are whole hundredths, so that sums are exact. Dates are kept in the form
-- that goes over the wire.

DROP TABLE IF EXISTS cycles;
DROP TABLE IF EXISTS consultants;
DROP TABLE IF EXISTS catalogue;
DROP TABLE IF EXISTS quotas;
DROP TABLE IF EXISTS carts;
DROP TABLE IF EXISTS cart_lines;
DROP TABLE IF EXISTS sent;
DROP TABLE IF EXISTS faults;
DROP TABLE IF EXISTS incoming;

CREATE TABLE cycles (
    code INTEGER PRIMARY KEY,
    starts TEXT NOT NULL,
    ends TEXT NOT NULL
);

-- A consultant without a cycle is one whose country is between two cycles.
CREATE TABLE consultants (
    id INTEGER PRIMARY KEY,
    country TEXT NOT NULL,
    cycle INTEGER REFERENCES cycles
);

-- Every "points_units" units of a product earn "points"; it is 1 for nearly all of them.
CREATE TABLE catalogue (
    code INTEGER PRIMARY KEY,
    description TEXT NOT NULL,
    points INTEGER NOT NULL,
    points_units INTEGER NOT NULL,
    price INTEGER NOT NULL,
    profit INTEGER NOT NULL,
    kit INTEGER NOT NULL,
    stock INTEGER NOT NULL CHECK (stock >= 0)
);

-- The most units of a product that one consultant may send in a cycle. Consultant 0 stands for everybody; a row of
-- her own goes before it.
CREATE TABLE quotas (
    product INTEGER NOT NULL,
    consultant INTEGER NOT NULL DEFAULT 0,
    units INTEGER NOT NULL CHECK (units >= 0),
    PRIMARY KEY (product, consultant)
);

-- A cart belongs to no consultant until one is associated with it.
CREATE TABLE carts (
    uuid TEXT PRIMARY KEY,
    number INTEGER NOT NULL UNIQUE,
    consultant INTEGER REFERENCES consultants,
    status TEXT NOT NULL DEFAULT 'OPEN' CHECK (status IN ('OPEN', 'SUBMITTED', 'EXPIRED')),
    created TEXT NOT NULL,
    magazine_cycle INTEGER NOT NULL REFERENCES cycles
);

-- A line keeps what the customer saw when she ordered, also after the product has left the catalogue.
CREATE TABLE cart_lines (
    cart TEXT NOT NULL REFERENCES carts,
    position INTEGER NOT NULL,
    benefit INTEGER NOT NULL,
    product INTEGER NOT NULL,
    description TEXT NOT NULL,
    amount INTEGER NOT NULL,
    unit_points INTEGER NOT NULL,
    points INTEGER NOT NULL,
    unit_price INTEGER NOT NULL,
    unit_profit INTEGER NOT NULL,
    kit INTEGER NOT NULL,
    PRIMARY KEY (cart, position)
);

-- The consultants' own carts: what checkouts have put there.
CREATE TABLE sent (
    order_id TEXT NOT NULL,
    consultant INTEGER NOT NULL REFERENCES consultants,
    cycle INTEGER,
    product INTEGER NOT NULL,
    quantity INTEGER NOT NULL,
    points INTEGER NOT NULL,
    price INTEGER NOT NULL,
    PRIMARY KEY (order_id, product)
);

-- At most one fault for a consultant and a call. "remaining" counts down; NULL means for ever.
CREATE TABLE faults (
    consultant INTEGER NOT NULL REFERENCES consultants,
    call TEXT NOT NULL,
    kind TEXT NOT NULL,
    value TEXT NOT NULL DEFAULT '',
    remaining INTEGER,
    PRIMARY KEY (consultant, call)
);

-- The messages by which customers' orders reach a consultant: what a sample host lists.
CREATE TABLE incoming (
    cart TEXT PRIMARY KEY REFERENCES carts,
    consultant INTEGER NOT NULL REFERENCES consultants,
    title TEXT NOT NULL,
    customer TEXT NOT NULL,
    message TEXT NOT NULL
);
