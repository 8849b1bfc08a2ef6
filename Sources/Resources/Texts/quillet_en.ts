<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name></name>
    <message>
        <source>Sale summary</source>
        <translation>Sale summary</translation>
    </message>
    <message>
        <source>You have previously registered the order!</source>
        <translation>You have previously registered the order!</translation>
    </message>
    <message>
        <source>This order was sent to your cart, if you want to change the quantity, remember that you can do it in your shopping cart.</source>
        <translation>This order was sent to your cart, if you want to change the quantity, remember that you can do it in your shopping cart.</translation>
    </message>
    <message>
        <source>Go to home screen</source>
        <translation>Go to home screen</translation>
    </message>
    <message>
        <source>Remember</source>
        <translation>Remember</translation>
    </message>
    <message>
        <source>You can continue collecting your sales until you reach the desired score to place your New Order.</source>
        <translation>You can continue collecting your sales until you reach the desired score to place your New Order.</translation>
    </message>
    <message>
        <source>Go to cart</source>
        <translation>Go to cart</translation>
    </message>
    <message>
        <source>Go to cart button</source>
        <translation>Go to cart button</translation>
    </message>
    <message>
        <source>We're sorry, but this information is no longer available.</source>
        <translation>We're sorry, but this information is no longer available.</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Go back</translation>
    </message>
    <message>
        <source>Go back button</source>
        <translation>Go back button</translation>
    </message>
    <message>
        <source>Products unavailable by stock</source>
        <translation>Products unavailable by stock</translation>
    </message>
    <message>
        <source>Products unavailable by quota</source>
        <translation>Products unavailable by quota</translation>
    </message>
    <message>
        <source>Products not found</source>
        <translation>Products not found</translation>
    </message>
    <message>
        <source>Checkout</source>
        <translation>Checkout</translation>
    </message>
    <message>
        <source>Whoops, we had a problem!</source>
        <translation>Whoops, we had a problem!</translation>
    </message>
    <message>
        <source>We are experiencing instability in our systems. Please try again later.</source>
        <translation>We are experiencing instability in our systems. Please try again later.</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Update</translation>
    </message>
    <message>
        <source>Another consultant registered the order earlier!</source>
        <translation>Another consultant registered the order earlier!</translation>
    </message>
    <message>
        <source>If you want to add the products to the shopping cart, ask your customer to access the interactive digital magazine again and create a new order.</source>
        <translation>If you want to add the products to the shopping cart, ask your customer to access the interactive digital magazine again and create a new order.</translation>
    </message>
    <message>
        <source>Share Magazine</source>
        <translation>Share Magazine</translation>
    </message>
    <message>
        <source>Code: </source>
        <translation>Code: %n</translation>
    </message>
    <message numerus="yes">
        <source>points count</source>
        <translation>
            <numerusform>%n point</numerusform>
            <numerusform>%n points</numerusform>
        </translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Loading</translation>
    </message>
    <message>
        <source>This is taking longer than usual.</source>
        <translation>This is taking longer than usual.</translation>
    </message>
</context>
</TS>
